#include "controls/VolumeSlider.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOptionSlider>

namespace {
constexpr unsigned kBase = 0x61b314;  // the sliders' green
constexpr unsigned kHotText = 0x1ab1ff;

QColor Ref(unsigned bgr) { return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff)); }

QPainterPath Octagon(const QRectF& r, qreal cut) {
  QPainterPath p;
  p.moveTo(r.left() + cut, r.top());
  p.lineTo(r.right() - cut, r.top());
  p.lineTo(r.right(), r.top() + cut);
  p.lineTo(r.right(), r.bottom() - cut);
  p.lineTo(r.right() - cut, r.bottom());
  p.lineTo(r.left() + cut, r.bottom());
  p.lineTo(r.left(), r.bottom() - cut);
  p.lineTo(r.left(), r.top() + cut);
  p.closeSubpath();
  return p;
}
}  // namespace

unsigned Lighten(unsigned colour, int amount) {
  const int d = amount >> 2;
  unsigned out = 0;
  for (int shift = 0; shift < 24; shift += 8) {
    int v = int((colour >> shift) & 0xff) + d;
    if (v < 0) v = 0;
    out |= unsigned(v & 0xff) << shift;
  }
  return out;
}

VolumeSlider::VolumeSlider(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
  setRange(0, 100);
  setTickInterval(10);
  setTickPosition(QSlider::TicksBothSides);
  setPageStep(10);
  setSingleStep(1);
  setCursor(Qt::PointingHandCursor);
}

void VolumeSlider::enterEvent(QEnterEvent* e) {
  m_hot = true;
  update();
  QSlider::enterEvent(e);
}

void VolumeSlider::leaveEvent(QEvent* e) {
  m_hot = false;
  update();
  QSlider::leaveEvent(e);
}

void VolumeSlider::paintEvent(QPaintEvent*) {
  QPainter g(this);
  g.setRenderHint(QPainter::Antialiasing, true);
  QStyleOptionSlider opt;
  initStyleOption(&opt);
  // The groove and the ticks as the style draws them; the thumb is ours.
  opt.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
  style()->drawComplexControl(QStyle::CC_Slider, &opt, &g, this);
  opt.subControls = QStyle::SC_SliderHandle;
  const QRectF r = QRectF(style()->subControlRect(QStyle::CC_Slider, &opt, QStyle::SC_SliderHandle, this)).adjusted(0.5, 0.5, -0.5, -0.5);
  const QColor base = Ref(kBase);
  const bool lively = m_hot || isSliderDown() || hasFocus();
  QBrush fill(base);
  if (lively) fill = QBrush(Ref(Lighten(kHotText, 1000)), Qt::Dense4Pattern);
  const QPainterPath thumb = Octagon(r, 2);
  g.fillPath(thumb, base);
  if (lively) g.fillPath(thumb, fill);
  g.setPen(Ref(Lighten(kBase, -900)));
  g.drawPath(thumb);
  // A band across the middle, outlined lighter.
  const QRectF band = r.adjusted(1, 6, -1, -6);
  if (band.height() > 1) {
    g.setPen(Ref(Lighten(kBase, 450)));
    g.drawRect(band);
  }
  // The two marks at the upper corners: quiet end white, loud end green.
  if (isEnabled()) {
    g.setPen(base);
    g.setBrush(Qt::white);
    g.drawEllipse(QRectF(1, 1, 7, 7));
    g.setBrush(base);
    g.drawEllipse(QRectF(width() - 8, 1, 7, 7));
  }
}
