#include "controls/ProgressBarX.h"

#include <QLinearGradient>
#include <QPainter>

#include "app/ColorRef.h"

namespace {
QColor Of(uint32_t colorRef) { return QColor::fromRgb(RgbOfColorRef(colorRef)); }
}  // namespace

CProgressCtrlX::CProgressCtrlX(QWidget* parent) : QProgressBar(parent) {
  SetColors(0x7b0000, 0xff0000, 0xffffff, 0xe73937);
  setMinimumHeight(22);
}

void CProgressCtrlX::SetColors(uint32_t from, uint32_t to, uint32_t text, uint32_t emptyText) {
  m_from = Of(from);
  m_to = Of(to);
  m_text = Of(text);
  m_emptyText = Of(emptyText);
  update();
}

void CProgressCtrlX::SetFixedText(const QString& text) {
  m_fixedText = text;
  update();
}

void CProgressCtrlX::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QRect r = rect().adjusted(1, 1, -1, -1);
  p.fillRect(rect(), palette().color(QPalette::Mid));
  p.fillRect(r, Qt::white);
  const int span = maximum() - minimum();
  const double share = span > 0 ? double(value() - minimum()) / span : 0.0;
  QRect filled = r;
  filled.setWidth(int(r.width() * qBound(0.0, share, 1.0)));
  QLinearGradient g(r.topLeft(), r.topRight());
  g.setColorAt(0, m_from);
  g.setColorAt(1, m_to);
  p.fillRect(filled, g);
  const QString label = m_fixedText.isEmpty() ? text() : m_fixedText;
  if (label.isEmpty()) return;
  QFont f = font();
  f.setBold(true);
  p.setFont(f);
  p.save();
  p.setClipRect(filled);
  p.setPen(m_text);
  p.drawText(r, Qt::AlignCenter, label);
  p.restore();
  p.setClipRect(QRect(filled.right() + 1, r.top(), r.right() - filled.right(), r.height()));
  p.setPen(m_emptyText);
  p.drawText(r, Qt::AlignCenter, label);
}
