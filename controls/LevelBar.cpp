#include "controls/LevelBar.h"

#include <QAccessible>
#include <QAccessibleValueInterface>
#include <QAccessibleWidget>
#include <QFontMetrics>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "controls/ColorRef.h"
#include "level/LevelDisplay.h"

namespace {

// Screen readers read the bar's value, its range and the text drawn on it.
class LevelBarAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit LevelBarAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::ProgressBar) {}
  LevelBar* bar() const { return static_cast<LevelBar*>(widget()); }
  void* interface_cast(QAccessible::InterfaceType t) override {
    if (t == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(t);
  }
  QString text(QAccessible::Text t) const override {
    if (t == QAccessible::Value) return bar()->Text();
    if (t == QAccessible::Description && bar()->accessibleDescription().isEmpty()) return bar()->Text();
    return QAccessibleWidget::text(t);
  }
  QVariant currentValue() const override { return double(bar()->Pos()); }
  void setCurrentValue(const QVariant&) override {}
  QVariant maximumValue() const override { return bar()->Upper(); }
  QVariant minimumValue() const override { return bar()->Lower(); }
  QVariant minimumStepSize() const override { return 0.1; }
};

QAccessibleInterface* LevelBarFactory(const QString& className, QObject* object) {
  if (className == QLatin1String("LevelBar") && object && object->isWidgetType())
    return new LevelBarAccessible(static_cast<QWidget*>(object));
  return nullptr;
}

}  // namespace

LevelBar::LevelBar(QWidget* parent) : QWidget(parent) {
  static const bool installed = [] {
    QAccessible::installFactory(LevelBarFactory);
    return true;
  }();
  (void)installed;
  setAttribute(Qt::WA_OpaquePaintEvent);
  QFont f = font();
  f.setBold(true);
  setFont(f);
}

void LevelBar::SetRange(int lower, int upper) {
  if (lower > upper) std::swap(lower, upper);
  m_lower = lower;
  m_upper = upper;
  m_pos = std::clamp(m_pos, float(m_lower), float(m_upper));
  Changed();
}

float LevelBar::SetPos(float value) {
  const float old = m_pos;
  m_pos = std::clamp(value, float(m_lower), float(m_upper));
  Changed();
  return old;
}

void LevelBar::SetBarColors(uint32_t end, uint32_t start) {
  // A first colour of 0 makes a single-coloured bar.
  m_end = end == 0 ? start : end;
  m_start = start;
  Changed();
}

void LevelBar::SetBkColor(uint32_t colour) {
  m_bk = colour;
  Changed();
}

void LevelBar::SetTiedText(bool on) {
  m_tied = on;
  Changed();
}

void LevelBar::SetShowDb(bool db) {
  if (db != m_showDb) updateGeometry();
  m_showDb = db;
  Changed();
}

void LevelBar::SetSuffix(const QString& suffix) {
  if (suffix == m_suffix) return;
  m_suffix = suffix;
  updateGeometry();
  Changed();
}

void LevelBar::SetShowValue(bool on) {
  m_showValue = on;
  Changed();
}

QString LevelBar::Text() const {
  if (!m_showValue) return {};
  return LevelBarText(double(m_pos) - m_lower, m_showDb, m_suffix);
}

int LevelBar::FilledLength(int length) const {
  if (m_upper == m_lower || m_pos <= m_lower) return 0;
  return int((double(m_pos) - m_lower) * length / (m_upper - m_lower));
}

int LevelBar::TextWidth() const {
  const QFontMetrics fm(font());
  const int widest = fm.horizontalAdvance(LevelBarText(888.8, m_showDb, m_suffix));
  return std::max(38, widest + 10);  // the frame's five pixels and a little air
}

bool LevelBar::TextDrawn() const {
  if (!m_showValue) return false;
  if (!m_tied) return true;
  const QRect r = rect().adjusted(3, 3, -2, -2);
  return QFontMetrics(font()).height() <= FilledLength(r.height());
}

void LevelBar::Changed() {
  update();
  if (QAccessible::isActive()) {
    QAccessibleValueChangeEvent ev(this, double(m_pos));
    QAccessible::updateAccessibility(&ev);
  }
}

void LevelBar::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QRect outer = rect();
  p.fillRect(outer, palette().window());
  const QRect r = outer.adjusted(3, 3, -2, -2);
  p.fillRect(r, FromColorRef(m_bk));

  const int filled = FilledLength(r.height());
  const QRect fill(r.left(), r.bottom() - filled + 1, r.width(), filled);
  if (filled > 0) {
    // The gradient spans the filled part only, from the start colour at the bottom.
    QLinearGradient g(fill.bottomLeft(), fill.topLeft());
    g.setColorAt(0, FromColorRef(m_start));
    g.setColorAt(1, FromColorRef(m_end));
    p.fillRect(fill, g);
  }

  const QString text = Text();
  if (!text.isEmpty()) {
    p.setFont(font());
    const QFontMetrics fm(font());
    const QColor onBar = Qt::white;
    // Beside the fill the text stands on the bar's own background, not the window's, so it
    // takes the contrast of that colour (a dark theme's light text would vanish on it).
    const QColor beside = FromColorRef(m_bk).lightness() > 128 ? QColor(Qt::black) : QColor(Qt::white);
    if (m_tied) {
      // Inside the fill at its end, and only where it fits.
      if (fm.height() <= filled) {
        const QRect at(r.left(), fill.top(), r.width(), fm.height() + 2);
        p.setPen(onBar);
        p.drawText(at, Qt::AlignHCenter | Qt::AlignTop, text);
      }
    } else {
      // In the middle of the bar, in one colour over the fill and another beside it.
      p.save();
      p.setClipRect(QRect(r.left(), r.top(), r.width(), r.height() - filled));
      p.setPen(beside);
      p.drawText(r, Qt::AlignCenter, text);
      p.restore();
      if (filled > 0 && onBar != beside) {
        p.save();
        p.setClipRect(fill);
        p.setPen(onBar);
        p.drawText(r, Qt::AlignCenter, text);
        p.restore();
      }
    }
  }

  // A thin frame with cut corners.
  p.setPen(QColor(0xc8, 0xc8, 0xc8));
  const QRect f = outer.adjusted(0, 0, -1, -1);
  p.drawLine(f.left() + 1, f.top(), f.right() - 1, f.top());
  p.drawLine(f.left(), f.top() + 1, f.left(), f.bottom() - 1);
  p.drawLine(f.left() + 1, f.bottom(), f.right() - 1, f.bottom());
  p.drawLine(f.right(), f.top() + 1, f.right(), f.bottom() - 1);
  p.setPen(Qt::black);
  p.drawLine(f.left() + 2, f.top() + 1, f.right() - 2, f.top() + 1);
  p.drawLine(f.left() + 1, f.top() + 2, f.left() + 1, f.bottom() - 2);
}
