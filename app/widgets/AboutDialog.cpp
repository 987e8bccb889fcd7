#include "app/widgets/AboutDialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QVBoxLayout>

#include "app/AboutInfo.h"
#include "app/Text.h"

namespace {
QLabel* Label(const QString& text, QWidget* parent, const char* name) {
  auto* l = new QLabel(text, parent);
  l->setObjectName(QLatin1String(name));
  return l;
}
}  // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
  setWindowTitle(Tonvane::tr("About Tonvane"));
  setObjectName(QStringLiteral("aboutDialog"));
  auto* outer = new QVBoxLayout(this);

  auto* head = new QHBoxLayout;
  auto* icon = new QLabel(this);
  const QIcon appIcon = QApplication::windowIcon().isNull()
                            ? style()->standardIcon(QStyle::SP_MediaVolume)
                            : QApplication::windowIcon();
  icon->setPixmap(appIcon.pixmap(64, 64));
  icon->setAlignment(Qt::AlignTop);
  head->addWidget(icon);

  auto* text = new QVBoxLayout;
  auto* title = Label(tonvane::kAppTitle, this, "aboutTitle");
  QFont big = title->font();
  big.setPointSizeF(big.pointSizeF() * 1.6);
  big.setBold(true);
  title->setFont(big);
  text->addWidget(title);
  text->addWidget(Label(Tonvane::tr("Version %1").arg(ProgramVersion()), this, "aboutVersion"));
  text->addWidget(Label(Tonvane::tr("Measures how loud audio files are: the peak level and the average "
                                    "level against the 89 dB reference."),
                        this, "aboutPurpose"));
  auto* licence = Label(LicenceText(), this, "aboutLicence");
  text->addWidget(licence);

  const QString mail = QString::fromLatin1(tonvane::kMailAddress);
  const QString web = QString::fromLatin1(tonvane::kHomePage);
  auto* links = new QGridLayout;
  links->addWidget(Label(Tonvane::tr("E-mail:"), this, "aboutMailCaption"), 0, 0);
  auto* mailLink = Label(QStringLiteral("<a href=\"mailto:%1\">%1</a>").arg(mail), this, "aboutMail");
  links->addWidget(mailLink, 0, 1);
  links->addWidget(Label(Tonvane::tr("Web site:"), this, "aboutWebCaption"), 1, 0);
  auto* webLink = Label(QStringLiteral("<a href=\"%1\">%1</a>").arg(web), this, "aboutWeb");
  links->addWidget(webLink, 1, 1);
  for (QLabel* l : {mailLink, webLink}) {
    l->setTextFormat(Qt::RichText);
    l->setOpenExternalLinks(true);
    l->setTextInteractionFlags(Qt::TextBrowserInteraction);
  }
  links->setColumnStretch(1, 1);
  text->addLayout(links);

  text->addSpacing(6);
  text->addWidget(Label(Tonvane::tr("Libraries in use:"), this, "aboutLibrariesCaption"));
  auto* libs = new QGridLayout;
  int row = 0;
  for (const auto& [name, version] : LibraryVersions()) {
    libs->addWidget(Label(name, this, "aboutLibraryName"), row, 0);
    auto* v = Label(version, this, "aboutLibraryVersion");
    v->setTextInteractionFlags(Qt::TextSelectableByMouse);
    libs->addWidget(v, row, 1);
    ++row;
  }
  libs->setColumnStretch(1, 1);
  libs->setContentsMargins(12, 0, 0, 0);
  text->addLayout(libs);
  head->addLayout(text, 1);
  outer->addLayout(head);

  // Long sentences wrap rather than widen the box beyond reason in any language.
  for (QLabel* l : findChildren<QLabel*>())
    if (l->objectName() == QLatin1String("aboutPurpose") || l->objectName() == QLatin1String("aboutLicence")) {
      l->setWordWrap(true);
      l->setMinimumWidth(360);
    }

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  outer->addWidget(buttons);
}
