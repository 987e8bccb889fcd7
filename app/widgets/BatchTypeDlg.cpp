#include "app/widgets/BatchTypeDlg.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/Session.h"
#include "app/Settings.h"
#include "app/Text.h"
#include "formats/Kinds.h"

namespace {
// The radio buttons in order of their index.
const char* const kTypeTexts[] = {
    QT_TRANSLATE_NOOP("Tonvane", "Mp3, Wav (MPEG 1.0 Layer III)"),
    QT_TRANSLATE_NOOP("Tonvane", "Mp4, M4a, M4b, M4p, M4r (AAC, ALAC)"),
    QT_TRANSLATE_NOOP("Tonvane", "Wav (Microsoft Wave RIFF)"),
    QT_TRANSLATE_NOOP("Tonvane", "FLAC"),
    QT_TRANSLATE_NOOP("Tonvane", "Ogg Vorbis"),
    QT_TRANSLATE_NOOP("Tonvane", "APE (Monkey\u2019s Audio)"),
};
constexpr int kTypeCount = 6;
}  // namespace

CTypeBP::CTypeBP(Session& s, QWidget* parent) : QDialog(parent), m_s(s) {
  setObjectName("CTypeBP");
  setWindowTitle(Tonvane::tr("Batch Processor - Tonvane 1.0"));
  auto* layout = new QVBoxLayout(this);
  auto* heading = new QLabel(Tonvane::tr("What type of the Batch Processor do You wish to open?"), this);
  heading->setObjectName("typeHeading");
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  layout->addWidget(heading);
  auto* group = new QGroupBox(Tonvane::tr("Type of the Batch Processor"), this);
  group->setObjectName("typeGroup");
  auto* groupLayout = new QVBoxLayout(group);
  auto* buttons = new QButtonGroup(this);
  for (int i = 0; i < kTypeCount; ++i) {
    auto* r = new QRadioButton(Tonvane::tr(kTypeTexts[i]), group);
    r->setObjectName(QStringLiteral("typeRadio%1").arg(i));
    buttons->addButton(r, i);
    groupLayout->addWidget(r);
    m_radios.push_back(r);
  }
  layout->addWidget(group);
  m_maximize = new QCheckBox(Tonvane::tr("Maximize window of the Batch Processor"), this);
  m_maximize->setObjectName("maximizeBox");
  layout->addWidget(m_maximize);
  auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  box->button(QDialogButtonBox::Ok)->setText(Tonvane::tr("OK"));
  box->button(QDialogButtonBox::Cancel)->setText(Tonvane::tr("Cancel"));
  layout->addWidget(box);
  connect(box, &QDialogButtonBox::accepted, this, &CTypeBP::accept);
  connect(box, &QDialogButtonBox::rejected, this, &CTypeBP::reject);

  // 100 stands for "never chosen" and offers the first button.
  int index = Settings::GetInt("Processor", 100);
  if (index < 0 || index >= kTypeCount) index = 0;
  m_radios[size_t(index)]->setChecked(true);
  Choose(index);
  m_maximize->setChecked(Settings::GetInt("Maximize", 0) != 0);
  connect(buttons, &QButtonGroup::idClicked, this, &CTypeBP::Choose);
  connect(m_maximize, &QCheckBox::clicked, this, [](bool on) { Settings::SetInt("Maximize", on ? 1 : 0); });
}

void CTypeBP::Choose(int index) {
  m_index = index;
  m_s.m_sourceKind = KindOfTypeIndex(index);
}

int CTypeBP::ChosenKind() const { return KindOfTypeIndex(m_index); }

void CTypeBP::accept() {
  Settings::SetInt("Processor", m_index);
  QDialog::accept();
}
