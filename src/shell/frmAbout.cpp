#include "shell/frmAbout.h"

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "platform/dialogs/Dialogs.h"
#include "shell/ProductHeading.h"
#include "shell/Version.h"

namespace {

constexpr char siteAddress[] = "https://kestrelmoor.example";

struct Tool {
    const char* program;
    const char* page;  ///< the argument that opens the page about the machine; may be null
};

/// What the usual desktops have for showing the machine and its system, first found first started.
constexpr Tool informationTools[] = {{"kinfocenter", nullptr},
                                     {"gnome-control-center", "info-overview"},
                                     {"cinnamon-settings", "info"},
                                     {"hardinfo2", nullptr},
                                     {"hardinfo", nullptr},
                                     {"mate-system-monitor", "--show-system-tab"},
                                     {"gnome-system-monitor", nullptr},
                                     {"xfce4-about", nullptr}};

bool startInformationTool() {
    for (const Tool& tool : informationTools) {
        const QString path = QStandardPaths::findExecutable(tool.program);
        const QStringList arguments = tool.page ? QStringList{tool.page} : QStringList{};
        if (!path.isEmpty() && QProcess::startDetached(path, arguments)) return true;
    }
    return false;
}

}  // namespace

frmAbout::frmAbout(Dialogs& dialogs) : dialogs_(dialogs) {
    setObjectName("frmAbout");
    setWindowTitle(tr("About Kestrelmoor"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 24);
    column->setSpacing(16);
    const QVersionNumber version = programVersion();
    column->addWidget(new ProductHeading(tr("Version %1.%2  Build %3")
                                             .arg(version.majorVersion())
                                             .arg(version.minorVersion())
                                             .arg(version.microVersion())));
    auto* purpose =
        new QLabel(tr("The season desk of a youth sports league: registrations, teams, equipment, "
                      "schedule, results and reports in one data file."));
    purpose->setWordWrap(true);
    column->addWidget(purpose);
    auto* address = new QLabel(QString("<a href=\"%1\">%1</a>").arg(siteAddress));
    address->setObjectName("lblWebAddress");
    address->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(address, &QLabel::linkActivated, this, &frmAbout::openSite);
    column->addWidget(address);
    column->addStretch();

    auto* buttons = new QHBoxLayout;
    auto* system = new QPushButton(tr("&System Info..."));
    system->setObjectName("cmdSysInfo");
    connect(system, &QPushButton::clicked, this, &frmAbout::showSystemInformation);
    auto* ok = new QPushButton(tr("&OK"));
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &frmAbout::accept);
    buttons->addWidget(system);
    buttons->addStretch();
    buttons->addWidget(ok);
    column->addLayout(buttons);
}

void frmAbout::openSite() {
    const QString question = tr("This will start your local browser") + '\n' +
                             tr("and connect to the Kestrelmoor Site.") + '\n' + tr("Do you wish to continue?");
    if (!dialogs_.ask(tr("Start Browser?"), question)) return;
    if (!dialogs_.openAddress(QUrl(siteAddress))) {
        dialogs_.warning(tr("Kestrelmoor"), tr("No browser was found to open\n%1.").arg(siteAddress));
    }
}

void frmAbout::showSystemInformation() {
    if (!startInformationTool()) {
        dialogs_.information(tr("Kestrelmoor"), tr("System Information Is Unavailable At This Time"));
    }
}
