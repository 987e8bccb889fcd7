#pragma once
// A vertical level bar: a fractional position in a range, a two-colour gradient over the
// filled part, and the level itself as text, tied to the end of the fill or standing in
// the middle of the bar. It shows what it is given; which value, range and colours is
// decided in the core. Screen readers get the value and the same text a person reads.
#include <QString>
#include <QWidget>
#include <cstdint>

class LevelBar : public QWidget {
  Q_OBJECT
 public:
  explicit LevelBar(QWidget* parent = nullptr);

  void SetRange(int lower, int upper);
  int Lower() const { return m_lower; }
  int Upper() const { return m_upper; }
  // Clamped to the range; returns the old position.
  float SetPos(float value);
  float Pos() const { return m_pos; }
  // Gradient from `start` at the bottom to `end` at the top of the fill (0x00BBGGRR).
  void SetBarColors(uint32_t end, uint32_t start);
  uint32_t EndColor() const { return m_end; }
  uint32_t StartColor() const { return m_start; }
  void SetBkColor(uint32_t colour);
  void SetTiedText(bool on);
  bool TiedText() const { return m_tied; }
  // Text settings: the scale decides the form, the suffix follows the value.
  void SetShowDb(bool db);
  void SetSuffix(const QString& suffix);
  void SetShowValue(bool on);
  // What the bar reads now; empty when it shows no value.
  QString Text() const;
  // False when the tied text does not fit into the fill and so is not drawn.
  bool TextDrawn() const;

  // Wide enough for the widest text a level can have, so that it is never cut at the sides.
  QSize sizeHint() const override { return {TextWidth(), 160}; }
  QSize minimumSizeHint() const override { return {TextWidth(), 100}; }

 protected:
  void paintEvent(class QPaintEvent*) override;

 private:
  void Changed();
  int FilledLength(int length) const;
  int TextWidth() const;

  int m_lower = 0, m_upper = 100;
  float m_pos = 0;
  uint32_t m_end = 0xff0000, m_start = 0x7b0000;
  uint32_t m_bk = 0xe0d1d1;
  bool m_tied = true;
  bool m_showDb = false;
  bool m_showValue = true;
  QString m_suffix;
};
