#pragma once
// The volume slider: 0 to 100 with a tick every 10, a green octagonal thumb that dithers
// while hot or held, and two marks at its ends (white at the quiet end, green at the loud
// one). What a move does is the player's business.
#include <QSlider>

// Adds amount / 4 to each byte of a COLORREF (0x00BBGGRR); a byte below 0 gives 0, one above
// 255 keeps its low eight bits.
unsigned Lighten(unsigned colour, int amount);

class VolumeSlider : public QSlider {
  Q_OBJECT
 public:
  explicit VolumeSlider(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {180, 28}; }

 protected:
  void paintEvent(QPaintEvent* e) override;
  void enterEvent(QEnterEvent* e) override;
  void leaveEvent(QEvent* e) override;

 private:
  bool m_hot = false;
};
