#include "controls/SeekBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTimerEvent>

#include "player/SeekHost.h"

namespace {
constexpr int kStepUnits = 5;  // 500 ms a step: five times the speed of playing
constexpr int kTickMs = 100;
constexpr int kFirstDelayMs = 55;
constexpr int kHoverMs = 55;

// The bar's colours, from COLORREF values (0x00BBGGRR).
QColor Ref(unsigned bgr) { return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff)); }
const QColor kEdge = Ref(0x8a8a8a);
const QColor kShadow = Ref(0xb2aa98);
const QColor kPlayedTop[3] = {Ref(0xc1f5c3), Ref(0xa6daa8), Ref(0x9fd1a1)};
const QColor kPlayed = Ref(0x7dac7e);
const QColor kThumb = Ref(0x7dac7e);
const QColor kThumbHot = Ref(0x00ccff);
}  // namespace

SeekBar::SeekBar(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setRange(0, 0);
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  setMinimumHeight(kThumbHeight + 4);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QRect SeekBar::LeftArrow() const { return QRect(0, 0, kThumbWidth, height()); }
QRect SeekBar::RightArrow() const { return QRect(width() - kThumbWidth, 0, kThumbWidth, height()); }
QRect SeekBar::ThumbRect() const { return QRect(m_thumbX, 0, kThumbWidth, height()); }

int SeekBar::ClampX(int x) const { return std::clamp(x, kThumbWidth, std::max(kThumbWidth, width() - 2 * kThumbWidth)); }

void SeekBar::PlaceThumb() {
  const int range = std::abs(maximum() - minimum());
  const int span = width() - 3 * kThumbWidth;
  const double factor = range == 0 ? 1.0 : double(span) / range;
  m_thumbX = ClampX(int(value() * factor + 0.5) + kThumbWidth);
  update();
}

void SeekBar::PositionFromThumb() {
  m_thumbX = ClampX(m_thumbX);
  const int range = std::abs(maximum() - minimum());
  const int span = std::max(1, width() - 3 * kThumbWidth);
  const int pos = std::clamp(int(double(m_thumbX - kThumbWidth) * range / span + 0.5), 0, range);
  const QSignalBlocker block(this);  // the thumb is where the pointer put it, not snapped yet
  setValue(pos);
  update();
}

void SeekBar::sliderChange(SliderChange change) {
  QSlider::sliderChange(change);
  if (!m_dragging && (change == SliderValueChange || change == SliderRangeChange)) PlaceThumb();
}

void SeekBar::resizeEvent(QResizeEvent* e) {
  QSlider::resizeEvent(e);
  PlaceThumb();
}

bool SeekBar::ChannelPlaying() const {
  bool playing = false;
  if (m_host != nullptr && m_host->SeekChannel() != nullptr) m_host->SeekChannel()->isPlaying(&playing);
  return playing;
}

// What the pointer's arrival over the bar does: a step that runs after the release ends,
// and a press that finds the channel already paused will not step.
void SeekBar::HitTest() {
  m_rewindTimer.stop();
  m_forwardTimer.stop();
  m_mayRewind = m_mayForward = false;
  if (m_host != nullptr) m_host->SetSeekEnabled(1);
}

void SeekBar::enterEvent(QEnterEvent* e) {
  QSlider::enterEvent(e);
}

void SeekBar::mousePressEvent(QMouseEvent* e) {
  if (e->button() != Qt::LeftButton) return;
  HitTest();
  m_pressed = true;
  snd::Channel* channel = m_host != nullptr ? m_host->SeekChannel() : nullptr;
  if (channel != nullptr) {
    bool paused = false;
    channel->getPaused(&paused);
    m_wasPaused = paused;
    m_followTimer.start(kTickMs, this);
    if (!paused) {
      m_host->SetSeekTicking(0);
      channel->setPaused(true);
      m_mayRewind = m_mayForward = true;
    }
  }
  const QPoint p = e->position().toPoint();
  if (ThumbRect().contains(p)) {
    m_thumbPressed = true;
  } else if (RightArrow().contains(p)) {
    m_rightHeld = true;
    m_delayTimer.start(kFirstDelayMs, this);
  } else if (LeftArrow().contains(p)) {
    m_leftHeld = true;
    m_delayTimer.start(kFirstDelayMs, this);
  } else {
    m_thumbX = p.x() - kThumbWidth / 2;
    PositionFromThumb();
    emit sliderMoved(value());
  }
}

void SeekBar::mouseMoveEvent(QMouseEvent* e) {
  const QPoint p = e->position().toPoint();
  const bool hot = ThumbRect().contains(p);
  if (!(e->buttons() & Qt::LeftButton)) {
    HitTest();  // the pointer moves over the bar with no button down
  } else if (m_host != nullptr && m_host->SeekChannel() != nullptr) {
    bool paused = false;
    m_host->SeekChannel()->getPaused(&paused);
    if (paused) {
      if (m_thumbPressed) m_dragging = true;
      if (m_dragging) {
        m_thumbX = p.x() - kThumbWidth / 2;
        PositionFromThumb();
        emit sliderMoved(value());
      }
    }
  } else if (m_thumbPressed) {
    // No player: the thumb still follows the hand.
    m_dragging = true;
    m_thumbX = p.x() - kThumbWidth / 2;
    PositionFromThumb();
  }
  if (hot != m_hot) {
    m_hot = hot;
    setCursor(hot ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
    m_hoverTimer.start(kHoverMs, this);
  }
}

void SeekBar::mouseReleaseEvent(QMouseEvent* e) {
  if (e->button() != Qt::LeftButton) return;
  snd::Channel* channel = m_host != nullptr ? m_host->SeekChannel() : nullptr;
  m_dragging = false;
  m_pressed = false;
  if (channel != nullptr) {
    m_followTimer.stop();
    const int p = value();
    channel->setPosition(unsigned(p) * 100, snd::TIMEUNIT_MS);
    setValue(p);
    m_host->SetSeekPosition(p);
    if (!m_wasPaused) {
      channel->setPaused(false);
      m_host->SetSeekTicking(1);
    }
  }
  PlaceThumb();
  m_heldTimer.stop();
  const QPoint p = e->position().toPoint();
  if (LeftArrow().contains(p) && m_leftHeld) {
    StartStepping(false);
  } else if (RightArrow().contains(p) && m_rightHeld) {
    StartStepping(true);
  } else if (ThumbRect().contains(p)) {
    m_hot = true;
    update();
    m_hoverTimer.start(kHoverMs, this);
  }
  m_leftHeld = m_rightHeld = m_thumbPressed = false;
}

void SeekBar::StartStepping(bool forward) {
  if (forward ? !m_mayForward : !m_mayRewind) return;
  (forward ? m_forwardTimer : m_rewindTimer).start(kTickMs, this);
  if (m_host != nullptr) m_host->SetSeekEnabled(0);
}

void SeekBar::Step(bool forward) {
  if (!ChannelPlaying()) return;  // a paused channel still plays
  int p = value();
  if (minimum() < p && p < maximum()) {
    if (forward) {
      p = std::min(p + kStepUnits, maximum());
    } else if (p < kStepUnits) {
      p = 0;
      m_host->StopFromSeekBar();
    } else {
      p -= kStepUnits;
    }
    setValue(p);
    // The sound follows the step, so that what is heard is where the thumb stands.
    if (snd::Channel* channel = m_host->SeekChannel()) {
      channel->setPosition(unsigned(p) * 100, snd::TIMEUNIT_MS);
      m_host->SetSeekPosition(p);
    }
  } else if (m_host->StopEnabled()) {
    m_host->StopFromSeekBar();
    m_host->SetSeekPosition(0);
    setValue(0);
  }
}

void SeekBar::timerEvent(QTimerEvent* e) {
  const int id = e->timerId();
  if (id == m_heldTimer.timerId()) {
    if (m_leftHeld) StartStepping(false);
    if (m_rightHeld) StartStepping(true);
  } else if (id == m_delayTimer.timerId()) {
    m_delayTimer.stop();
    if (m_leftHeld || m_rightHeld) m_heldTimer.start(kTickMs, this);
  } else if (id == m_hoverTimer.timerId()) {
    if (!ThumbRect().contains(mapFromGlobal(QCursor::pos()))) {
      m_hot = false;
      m_hoverTimer.stop();
      setCursor(Qt::ArrowCursor);
      update();
    }
  } else if (id == m_rewindTimer.timerId()) {
    Step(false);
  } else if (id == m_forwardTimer.timerId()) {
    Step(true);
  } else if (id == m_followTimer.timerId()) {
    if (m_host != nullptr && m_host->SeekChannel() != nullptr) {
      const int p = value();
      m_host->SeekChannel()->setPosition(unsigned(p) * 100, snd::TIMEUNIT_MS);
      m_host->SetSeekPosition(p);
    }
  } else {
    QSlider::timerEvent(e);
  }
}

void SeekBar::paintEvent(QPaintEvent*) {
  QPainter g(this);
  g.setRenderHint(QPainter::Antialiasing, true);
  const int W = width(), h = height();
  const QColor face = palette().color(QPalette::Button);
  const QColor back = palette().color(QPalette::Window);
  g.fillRect(rect(), back);
  const bool live = isEnabled() && maximum() > minimum();
  // The channel between the arrows: its rim, the played part green up to the thumb's middle.
  const int top = 3, bottom = h - 4;
  const QRect channel(kThumbWidth, top, W - 2 * kThumbWidth, bottom - top + 1);
  g.fillRect(channel, face.lighter(105));
  g.setPen(kEdge);
  g.drawLine(channel.topLeft(), channel.topRight());
  g.drawLine(channel.bottomLeft(), channel.bottomRight());
  if (live) {
    const int played = m_thumbX + kThumbWidth / 2 - kThumbWidth;
    if (played > 0) {
      for (int i = 0; i < 3; ++i) g.fillRect(QRect(kThumbWidth, top + 1 + i, played, 1), kPlayedTop[i]);
      g.fillRect(QRect(kThumbWidth, top + 4, played, bottom - top - 4), kPlayed);
    }
  }
  // The arrows.
  auto arrow = [&](const QRect& r, bool left) {
    g.setPen(kEdge);
    g.setBrush(face);
    g.drawRoundedRect(r.adjusted(1, 2, -1, -2), 3, 3);
    QPainterPath tri;
    const QPointF c = QRectF(r).center();
    const qreal s = std::min<qreal>(5, h / 3.0);
    if (left) {
      tri.moveTo(c.x() - s / 2, c.y());
      tri.lineTo(c.x() + s / 2, c.y() - s);
      tri.lineTo(c.x() + s / 2, c.y() + s);
    } else {
      tri.moveTo(c.x() + s / 2, c.y());
      tri.lineTo(c.x() - s / 2, c.y() - s);
      tri.lineTo(c.x() - s / 2, c.y() + s);
    }
    tri.closeSubpath();
    g.fillPath(tri, isEnabled() ? palette().color(QPalette::ButtonText) : kShadow);
  };
  arrow(LeftArrow(), true);
  arrow(RightArrow(), false);
  // No thumb with range 0: nothing is loaded.
  if (!live) return;
  const QRect t = ThumbRect().adjusted(1, 2, -1, -2);
  g.setPen(kEdge);
  g.setBrush(m_hot ? kThumbHot : kThumb);
  g.drawRoundedRect(t, 3, 3);
  g.setPen(QColor(255, 255, 255, 160));
  for (int i = -1; i <= 1; ++i) g.drawLine(t.center().x() + 3 * i, t.top() + 3, t.center().x() + 3 * i, t.bottom() - 3);
}
