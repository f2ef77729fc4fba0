#include "tour/Tour.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace {

/// A stop of the Tab key on the player form; an empty text leaves what stands there.
struct Stop {
    const char* field;
    const char* typed;
};

constexpr Stop afterLastName[] = {
    {"txtPlayerFirstName", "Juniper"},
    {"txtPlayerMiddleInitial", "K"},
    {"txtPlayerAddress1", "18 Orchard Lane"},
    {"txtPlayerAddress2", "2B"},
    {"txtPlayerCity", ""},
    {"cboPlayerStateId", ""},
    {"txtPlayerPostalCode", ""},
    {"cboPlayerCountryCode", "USA"},
    {"mskedPlayerPhoneArea", "503"},  // a full mask moves on by itself
    {"mskedPlayerPhone", "5550182"},
    {"txtPlayerEmailAddress", "winterbourne@example.org"},
    {"dtpPlayerBirthDate", "9/14/2016"},
    {"cboPlayerGender", "Female"},
    {"txtPlayerHeight", "52"},
    {"txtPlayerWeight", "61"},
    {"txtPlayerYearsExperience", "2"},
    {"chkPlayerHandRight", " "},
    {"chkPlayerHandLeft", ""},
    {"mskedPlayerFeeAmount", ""},  // taken from the division
    {"mskedPlayerFundRaiserFee", ""},
    {"mskedPlayerOtherFees", "5"},
    {"mskedPlayerAmountPaid", "60"},
    {"cboPlayerHowFeePaid", "Check"},
    {"dtpPlayerRegistrationDate", ""},
    {"txtPlayerTryoutNumber", "118"},
    {"cboPlayerDivision", "Minors Softball"},
};

const QString child = QStringLiteral("Winterbourne, Juniper - 9/14/2016");

}  // namespace

Tour::Tour(ProgramParts& parts, Guide& guide, QString pdf) : parts_(parts), guide_(guide), pdf_(std::move(pdf)) {}

void Tour::take() {
    start();
    openRegistration();
    startChild();
    fillChild();
    fillParents();
    saveChild();
    findChild();
    addSchool();
    previewList();
    saveList();
    exit();
}

void Tour::start() {
    guide_.begin("First start");
    bool running = false;
    guide_.during([&] { running = parts_.start() == StartRoutine::Outcome::Running; }, "The greeting",
                  [this] {
                      guide_.picture("greeting");
                      guide_.click("cmdOK");
                  });
    guide_.require(running, "The program's start");
    guide_.waitForScreen("frmStartUp");
    guide_.picture("navigator");
}

void Tour::openRegistration() {
    guide_.begin("Registration");
    guide_.click("cmdRegister");
    guide_.waitForScreen("frmRegister");
    search("Sa");
    guide_.picture("registration-search");
    guide_.key(Qt::Key_Return);
    const QString found = guide_.control<QLineEdit>("txtPlayerLastName").text();
    guide_.require(found.startsWith("Sa"), "A player whose name begins with \"Sa\"");
}

/// Types into the search list, which has the focus after Alt+U.
void Tour::search(const QString& text) {
    guide_.key(Qt::Key_U, Qt::AltModifier);
    guide_.waitForFocus("cboPlayerSearchList");
    guide_.type(text);
}

void Tour::startChild() {
    guide_.begin("A new player with nothing but a last name");
    guide_.key(Qt::Key_N, Qt::AltModifier);
    guide_.waitForFocus("txtPlayerLastName");
    guide_.picture("registration-new");
    guide_.type("Winterbourne");
    guide_.during([this] { guide_.key(Qt::Key_S, Qt::AltModifier); }, "The box with what is missing",
                  [this] {
                      guide_.picture("registration-missing");
                      guide_.key(Qt::Key_Return);
                  });
    guide_.waitForFocus("txtPlayerFirstName");  // the first that is missing
}

void Tour::fillChild() {
    guide_.begin("The player with the keyboard alone");
    for (const Stop& stop : afterLastName) {
        guide_.require(guide_.focus() == stop.field, QString("The way from %1 to %2").arg(guide_.focus(), stop.field));
        guide_.type(stop.typed);
        if (guide_.focus() == stop.field) guide_.key(Qt::Key_Tab);
    }
    guide_.waitFor([this] { return guide_.control<QLabel>("lblPlayerBalance").text() != "$0.00"; }, "The balance");
    guide_.picture("registration-filled");
}

void Tour::fillParents() {
    guide_.begin("The parents");
    guide_.clickTab("Parent Info.");
    for (const auto& [field, name] :
         {std::pair{"txtPlayerDadFirstName", "Rowan"}, {"txtPlayerMomFirstName", "Hazel"}}) {
        guide_.click(field);
        guide_.type(name);
    }
    guide_.picture("registration-parents");
    for (const auto& [tab, name] :
         {std::pair{"School/Uniform", "school"}, {"Medical", "medical"}, {"Custom Fields", "custom"}}) {
        guide_.clickTab(tab);
        guide_.picture(QString("registration-") + name);
    }
    guide_.clickTab("Players");
}

void Tour::saveChild() {
    guide_.begin("Save");
    guide_.key(Qt::Key_S, Qt::AltModifier);
    guide_.waitForStatus("Record \"" + child + "\" Saved.");
    guide_.picture("registration-saved");
}

void Tour::findChild() {
    guide_.begin("Find the player again");
    search("Ma");
    guide_.key(Qt::Key_Return);
    guide_.require(guide_.control<QLineEdit>("txtPlayerFirstName").text() != "Juniper", "Another player");
    search("winterb");
    guide_.key(Qt::Key_Return);
    guide_.require(guide_.control<QLineEdit>("txtPlayerFirstName").text() == "Juniper", "The same player");
    guide_.picture("registration-found");
}

void Tour::addSchool() {
    guide_.begin("A school in the setup");
    guide_.clickTool("btnSetup");
    guide_.waitForScreen("frmSetup");
    guide_.picture("setup-certifications");
    guide_.clickTab("Schools");
    guide_.click("cmdAdd");
    guide_.type("Larkspur Elementary");
    guide_.key(Qt::Key_Tab);
    guide_.type("Moved to Mill Road in 2024.");
    guide_.click("cmdSave");
    guide_.waitForStatus("Record \"Larkspur Elementary\" Saved.");
    guide_.picture("setup-school");
}

void Tour::previewList() {
    guide_.begin("The list of the active players on the screen");
    guide_.clickTool("btnReports");
    guide_.waitForScreen("frmReports");
    guide_.click("optReportSelection12");
    guide_.require(guide_.control<QRadioButton>("optReportSelection12").isChecked(),
                   "The choice of the league's lists");
    guide_.picture("reports");
    guide_.during([this] { guide_.click("cmdPrint"); }, "The preview",
                  [this] {
                      guide_.waitFor([this] { return !guide_.control<QLabel>("pageCount").text().endsWith("..."); },
                                     "The last page");
                      guide_.picture("preview");
                      guide_.key(Qt::Key_F, Qt::ControlModifier);
                      guide_.type("Winterbourne");
                      guide_.key(Qt::Key_Return);
                      guide_.require(guide_.control<QLabel>("findResult").text().isEmpty(),
                                     "The new player in the list");
                      guide_.picture("preview-found");
                      guide_.click("cmdClose");
                  });
}

void Tour::saveList() {
    guide_.begin("The list as a PDF file");
    guide_.click("optReportDestination3");
    guide_.require(guide_.control<QRadioButton>("optReportDestination3").isChecked(), "The choice of the PDF file");
    guide_.during([this] { guide_.click("cmdPrint"); }, "The file dialog",
                  [this] {
                      auto& name = guide_.control<QLineEdit>("fileNameEdit");
                      name.setFocus();
                      name.selectAll();
                      guide_.type(pdf_);
                      guide_.picture("file-dialog");
                      guide_.key(Qt::Key_Return);
                  });
    guide_.waitForStatus("Report saved as " + pdf_ + '.');
    guide_.require(QFile(pdf_).size() > 0, "The PDF file");
    guide_.picture("reports-saved");
}

void Tour::exit() {
    guide_.begin("Exit");
    guide_.during([this] { guide_.clickTool("btnExit"); }, "The question",
                  [this] {
                      guide_.picture("exit");
                      guide_.key(Qt::Key_Return);
                  });
    guide_.waitFor([] { return !QApplication::activeWindow(); }, "The end of the program");
}
