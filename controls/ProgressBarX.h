#pragma once
// A progress bar that paints its fill as a gradient and its text in two colours: one over
// the filled part, one over the empty part, so the text reads at every position.
#include <QColor>
#include <QProgressBar>

class CProgressCtrlX : public QProgressBar {
  Q_OBJECT
 public:
  explicit CProgressCtrlX(QWidget* parent = nullptr);
  // Colours as 0x00BBGGRR values.
  void SetColors(uint32_t from, uint32_t to, uint32_t text, uint32_t emptyText);
  // A fixed text in place of the format (the end of a cancelled run).
  void SetFixedText(const QString& text);

 protected:
  void paintEvent(QPaintEvent* e) override;

 private:
  QColor m_from, m_to, m_text, m_emptyText;
  QString m_fixedText;
};
