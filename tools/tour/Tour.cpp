#include "tour/Tour.h"

#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>

#include "tour/Chapters.h"

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
    {"dtpPlayerRegistrationDate", ""},
    {"cboPlayerDivision", "Rookie Ball"},
    {"chkPlayerActive", ""},
    {"chkPlayerIdCheck", ""},
    {"chkPlayerBirthCertificateChecked", ""},
    {"chkPlayerIsUmpire", ""},
    {"txtPlayerTryoutNumber", "118"},
    {"txtPlayerRegistrationNumber", ""},
    {"mskedPlayerFeeAmount", ""},  // taken from the division
    {"mskedPlayerFundRaiserFee", ""},
    {"mskedPlayerOtherFees", "5"},
    {"mskedPlayerAmountPaid", "60"},
    {"cboPlayerHowFeePaid", "Check"},
};

constexpr Stop ofDivision[] = {
    {"txtDivName", "Rookie Ball"},     {"mskedDivMinAge", "8"},         {"mskedDivMaxAge", "10"},
    {"cboDivGender", "Male & Female"}, {"cboDivSport", "Baseball"},     {"cboDivAgeCutOffMonth", "August"},
    {"cboDivAgeCutOffDay", "31"},      {"txtDivRegistrationFee", "85"},
};

constexpr Stop ofSibling[] = {
    {"txtPlayerFirstName", "Linden"},
    {"dtpPlayerBirthDate", "3/2/2018"},
    {"cboPlayerDivision", "Rookie Ball"},
};

constexpr Stop ofParents[] = {
    {"cboPlayerGuardian1Relationship", "Father"},
    {"txtPlayerDadFirstName", "Rowan"},
    {"cboPlayerGuardian2Relationship", "Mother"},
    {"txtPlayerMomFirstName", "Hazel"},
};

const QString child = QStringLiteral("Winterbourne, Juniper - 9/14/2016");
const QString sibling = QStringLiteral("Winterbourne, Linden - 3/2/2018");

}  // namespace

Tour::Tour(ProgramParts& parts, Guide& guide, QString pdf) : parts_(parts), guide_(guide), pdf_(std::move(pdf)) {}

void Tour::take() {
    start();
    visitReports(guide_);
    visitLabels(guide_);
    visitGames(guide_);
    openRegistration();
    renameOrganization();
    addDivision();
    startChild();
    fillChild();
    fillParents();
    saveChild();
    findChild();
    addSibling();
    showVolunteer();
    addSchool();
    previewList();
    saveList();
    goToNavigator();
    visitTeams(guide_);
    visitEquipment(guide_);
    mergeSecondFile(guide_);
    visitMaintenance(guide_, QFileInfo(pdf_).absolutePath() + "/Kestrelmoor.zip");  // the last: it changes the league
    guide_.click("cmdReports");
    guide_.waitForScreen("frmReports");
    exit();
}

void Tour::goToNavigator() {
    guide_.clickTool("btnStartUp");
    guide_.waitForScreen("frmStartUp");
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
    search("cboPlayerSearchList", "Sa");
    guide_.picture("registration-search");
    guide_.key(Qt::Key_Return);
    const QString found = guide_.control<QLineEdit>("txtPlayerLastName").text();
    guide_.require(found.startsWith("Sa"), "A player whose name begins with \"Sa\"");
}

/// Types into the search list of that name, which has the focus after Alt+U.
void Tour::search(const QString& list, const QString& text) {
    guide_.key(Qt::Key_U, Qt::AltModifier);
    guide_.waitForFocus(list);
    guide_.type(text);
}

void Tour::renameOrganization() {
    guide_.begin("The organization's name in the preferences");
    guide_.during([this] { guide_.clickMenu("mnuTools", "mnuToolsPreferences"); }, "The preferences",
                  [this] {
                      guide_.waitForFocus("txtOrganizationName");
                      guide_.key(Qt::Key_A, Qt::ControlModifier);
                      guide_.type("Maple Hollow Youth Baseball and Softball");
                      guide_.picture("preferences");
                      guide_.click("cmdSave");
                      guide_.require(!guide_.control("cmdSave").isEnabled(), "The saved preferences");
                      guide_.click("cmdClose");
                  });
}

void Tour::addDivision() {
    guide_.begin("A division");
    guide_.clickTool("btnTeams");
    guide_.waitForScreen("frmTeams");
    guide_.key(Qt::Key_N, Qt::AltModifier);
    guide_.waitForFocus("txtDivName");
    for (const Stop& stop : ofDivision) guide_.fill(stop.field, stop.typed);
    guide_.key(Qt::Key_S, Qt::AltModifier);
    guide_.waitForStatus("Record \"Rookie Ball\" Saved.");
    guide_.picture("division");
}

void Tour::startChild() {
    guide_.begin("A new player with nothing but a last name");
    guide_.clickTool("btnRegister");
    guide_.waitForScreen("frmRegister");
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
    for (const Stop& stop : ofParents) guide_.fill(stop.field, stop.typed);
    guide_.click("optPlayerDadVolunteer0");
    guide_.picture("registration-parents");
    for (const auto& [tab, name] :
         {std::pair{"School/Uniform", "school"}, {"Medical", "medical"}, {"Custom Fields", "custom"}}) {
        guide_.clickTab(tab);
        guide_.picture(QString("registration-") + name);
    }
    guide_.clickTab("Players");
}

void Tour::saveChild() {
    guide_.begin("Save, with the parent who volunteers");
    guide_.during([this] { guide_.key(Qt::Key_S, Qt::AltModifier); }, "The form of the new volunteer",
                  [this] {
                      guide_.picture("new-volunteer");
                      guide_.click("cmdSave");
                  });
    guide_.waitForStatus("Record \"" + child + "\" Saved.");
    guide_.picture("registration-saved");
}

void Tour::findChild() {
    guide_.begin("Find the player again");
    search("cboPlayerSearchList", "Ma");
    guide_.key(Qt::Key_Return);
    guide_.require(guide_.control<QLineEdit>("txtPlayerFirstName").text() != "Juniper", "Another player");
    search("cboPlayerSearchList", "winterb");
    guide_.key(Qt::Key_Return);
    guide_.require(guide_.control<QLineEdit>("txtPlayerFirstName").text() == "Juniper", "The same player");
    guide_.picture("registration-found");
}

void Tour::addSibling() {
    guide_.begin("A sibling, whose parent volunteers too");
    guide_.click("cmdAddSibling");
    guide_.waitForFocus("txtPlayerFirstName");
    for (const Stop& stop : ofSibling) guide_.fill(stop.field, stop.typed);
    guide_.picture("sibling");
    guide_.clickTab("Parent Info.");
    guide_.click("optPlayerDadVolunteer0");
    guide_.clickTab("Players");
    guide_.key(Qt::Key_S, Qt::AltModifier);  // the volunteer is known by now
    guide_.waitForStatus("Record \"" + sibling + "\" Saved.");
}

void Tour::showVolunteer() {
    guide_.begin("The volunteer and both children");
    guide_.clickTab("Volunteer Registrations");
    search("cboVolSearchList", "winterb");
    guide_.key(Qt::Key_Return);
    guide_.require(guide_.control<QLineEdit>("txtVolFirstName").text() == "Rowan", "The parent as a volunteer");
    guide_.picture("volunteer");
    guide_.clickTab("Positions and Certifications");
    guide_.require(guide_.control<QListView>("lstVolPlayers").model()->rowCount() == 2, "Both children of the parent");
    guide_.picture("volunteer-children");
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
    guide_.click("optReportOptions2");
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
