#pragma once
// The seek bar: arrows at both ends, a channel whose played part is green, and a thumb. A
// press pauses the player while the button is down and moves the sound every 100 ms to
// where the thumb is; the release sets the final position and plays on. The arrows step
// five units (500 ms) every 100 ms while held, and go on stepping after the release until
// the pointer moves over the bar again.
//
// Positions count 100 ms. It is a QSlider underneath, so assistive technology reads it as a
// slider with its position as the value.
#include <QBasicTimer>
#include <QSlider>

class ISeekHost;

class SeekBar : public QSlider {
  Q_OBJECT
 public:
  explicit SeekBar(QWidget* parent = nullptr);
  void SetHost(ISeekHost* host) { m_host = host; }

  // Width of the thumb and of each arrow.
  static constexpr int kThumbWidth = 26;
  static constexpr int kThumbHeight = 12;

  int ThumbX() const { return m_thumbX; }
  // The user holds the bar: the player leaves its position alone.
  bool Held() const { return m_pressed; }
  // Places the thumb from the position.
  void PlaceThumb();

  QSize sizeHint() const override { return {400, 18}; }
  QSize minimumSizeHint() const override { return {4 * kThumbWidth, 16}; }

 protected:
  void paintEvent(QPaintEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void enterEvent(QEnterEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void timerEvent(QTimerEvent* e) override;
  void sliderChange(SliderChange change) override;

 private:
  QRect ThumbRect() const;
  QRect LeftArrow() const;
  QRect RightArrow() const;
  int ClampX(int x) const;
  void PositionFromThumb();
  void HitTest();
  void StartStepping(bool forward);
  void Step(bool forward);
  bool ChannelPlaying() const;

  ISeekHost* m_host = nullptr;
  int m_thumbX = kThumbWidth;
  bool m_hot = false;
  bool m_pressed = false;
  bool m_rightHeld = false, m_leftHeld = false;
  bool m_thumbPressed = false, m_dragging = false;
  bool m_wasPaused = false;
  bool m_mayRewind = true, m_mayForward = true;
  // The bar's timers: 1 arrow held, 2 arrow's first delay, 3 hover, 5 rewind, 6 forward,
  // 7 sound follows the thumb while the button is down.
  QBasicTimer m_heldTimer, m_delayTimer, m_hoverTimer, m_rewindTimer, m_forwardTimer, m_followTimer;
};
