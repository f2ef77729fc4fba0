#include "maintenance/frmMerge.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "maintenance/BusyBar.h"
#include "maintenance/merge/MergeFile.h"
#include "maintenance/merge/MergeRun.h"
#include "platform/files/Files.h"
#include "platform/widgets/ButtonRow.h"
#include "platform/widgets/FormLayout.h"
#include "shell/Program.h"
#include "shell/Screens.h"
#include "shell/frmUpdateStatus.h"

namespace {

constexpr char workFolder[] = "Merge File";

class StatusWindow final : public MergeProgress {
public:
    explicit StatusWindow(frmUpdateStatus& window) : window_(window) {}
    void begin(const QString& text) override { window_.showStep(text); }
    void reached(double part, bool writing) override {
        const int percent = static_cast<int>(part * BusyBar::whole);
        if (writing)
            window_.showPart(percent);
        else
            window_.showProgress(percent);
    }

private:
    frmUpdateStatus& window_;
};

}  // namespace

frmMerge::frmMerge(Program& program) : program_(program) {
    setObjectName("frmMerge");
    setWindowTitle(tr("Merge Kestrelmoor Data"));
    auto* heading = new QLabel(tr("Merge Instructions"));
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    heading->setFont(font);
    auto* instructions = new QPlainTextEdit;
    instructions->setObjectName("txtInstructions");
    instructions->setAccessibleName(heading->text());
    instructions->setReadOnly(true);
    instructions->setTabChangesFocus(true);
    instructions->setPlainText(QStringList{
        tr("1.  The merge allows you to merge a Kestrelmoor Data file into your local Kestrelmoor Data.  The data "
           "file that is being merged into your local Kestrelmoor Data is NOT updated in any way."),
        tr("2.  It is highly recommended that a Backup is performed to backup your current data BEFORE performing "
           "the merge operation.  This will allow the capability to go back to a prior version of your local "
           "database if something unexpectedly goes wrong with the merge."),
        tr("3.  When you click on the Merge button below, you will be prompted for an input file name.  Select the "
           "Kestrelmoor Data file that you want to merge into your local Kestrelmoor data file.  This can be "
           "either a Kestrelmoor Backup (stored on floppy disk or another area on your hard disk), or another "
           "Kestrelmoor data file stored somewhere other than your current Kestrelmoor installation directory.  "
           "The Kestrelmoor Backup files are in a Zip format.  The merge routine will automatically unzip the file "
           "and merge it into your local data file."),
        tr("4.  Game Schedules are NOT merged within the databases.  It is recommended that you keep one master "
           "game schedule on a single Master PC.")}
                                   .join("\n\n"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(spacing::group, spacing::group, spacing::group, spacing::group);
    layout->setSpacing(spacing::margin);
    layout->addWidget(heading);
    layout->addWidget(instructions, 1);
    buttons_ = new ButtonRow(this);
    layout->addWidget(buttons_);
    QPushButton* merge = buttons_->add("cmdMerge", tr("&Merge"), [this] { this->merge(); });
    merge->setDefault(true);
    merge->setFocus();
    buttons_->add("cmdClose", tr("&Close"), [this] { reject(); });
    constexpr int titleBar = 40;  // of the desktop's window manager
    resize(QSize(620, 400).boundedTo(QGuiApplication::primaryScreen()->availableSize() - QSize(0, titleBar)));
}

void frmMerge::reject() {
    if (!running_) QDialog::reject();
}

void frmMerge::merge() {
    const bool goesOn = program_.dialogs().ask(tr("Do you have a Current Backup?"),
                                               tr("Please make sure that you have a current backup\n"
                                                  "of your data before attempting the merge!\n\n"
                                                  "Do you wish to continue with the merge?"));
    if (!goesOn) return;
    const std::optional<QString> path = chooseFile();
    if (!path) return;
    const std::unique_ptr<MergeFile> file = open(*path);
    if (!file || !program_.screens.offerToSave()) return;
    running_ = true;
    run(*file);
    running_ = false;
    program_.screens.showAnew();
}

std::optional<QString> frmMerge::chooseFile() {
    const std::optional<QString> chosen =
        program_.dialogs().openFile({.title = tr("Select the Data that is to be merged into your data..."),
                                     .filters = tr("Kestrelmoor Backup File (*.zip)|*.zip|"
                                                   "Kestrelmoor Data File (*.kmr)|*.kmr|All Files (*.*)|*.*"),
                                     .defaultSuffix = ".zip"});
    if (!chosen) return {};
    const std::optional<QString> path = unpacked(*chosen);
    if (path && isLocalFile(*path)) {
        tellLocalFile();
        return {};
    }
    return path;
}

std::optional<QString> frmMerge::unpacked(const QString& chosen) {
    if (chosen.right(3).toLower() != "zip") return chosen;
    const QString copy = QDir(program_.homeFolder()).filePath(QString("%1/%2").arg(workFolder, dataFileName));
    if (isLocalFile(copy)) return copy;  // it must not be overwritten
    archive::Fault fault = archive::Fault::None;
    {
        BusyBar bar(tr("Unpacking the backup..."));
        fault = unpackForMerge(chosen, copy, bar.from(0));
    }
    if (fault == archive::Fault::None) return copy;
    program_.dialogs().warning(tr("Restore Error..."),
                               tr("Invalid Kestrelmoor Backup File.  Please make sure that you are\n"
                                  "restoring from a valid Kestrelmoor Backup File."));
    return {};
}

bool frmMerge::isLocalFile(const QString& path) const {
    const auto plain = [](const QString& name) { return QDir::cleanPath(QDir(name).absolutePath()); };
    const QString& local = program_.store.dataFilePath;
    return plain(path).compare(plain(local), Qt::CaseInsensitive) == 0 || files::sameFile(path, local);
}

void frmMerge::tellLocalFile() {
    program_.dialogs().warning(tr("Invalid Merge File"), tr("You have selected your current data file as the\n"
                                                            "MERGE FROM file.  Please select a data file\n"
                                                            "other than your current data file.\n\n"
                                                            "Press OK to continue."));
}

std::unique_ptr<MergeFile> frmMerge::open(const QString& path) {
    Dialogs& dialogs = program_.dialogs();
    std::unique_ptr<MergeFile> file;
    QString failure;
    {
        BusyBar bar(tr("Reading the data that is to be merged..."));
        try {
            file = std::make_unique<MergeFile>(program_.store, path, bar.quietlyFrom(0));
        } catch (const datafile::Error& error) {
            failure = numbered(error);
        }
    }
    if (!file) {
        dialogs.warning(tr("Database Error"), failure);
        return {};
    }
    switch (file->code()) {
        case MergeFile::Code::Fits: return file;
        case MergeFile::Code::Older:
            dialogs.error(tr("Old Data Format - Cannot Merge Data"),
                          tr("The merge file you have selected is an older database version and does not support "
                             "merging of data.\n\n"
                             "Please make sure that all users have upgraded to the latest version of Kestrelmoor,\n"
                             "and then try the merge again."));
            return {};
        case MergeFile::Code::NotOurs:
            dialogs.warning(tr("Invalid Data Format"),
                            tr("The file you have selected does not appear to be a Kestrelmoor\n"
                               "data file.  Please select a valid Kestrelmoor data file that is\n"
                               "to be merged into your data.\n\n"
                               "Press OK to continue."));
            return {};
    }
    dialogs.error(tr("Unknown Error"), tr("Unknown Error.  Please contact Kestrelmoor Support"));
    return {};
}

/// Nothing here takes input meanwhile: what the user does in that time is taken while the form is disabled, and lost.
void frmMerge::run(const MergeFile& file) {
    auto* status = new frmUpdateStatus(tr("Merge Kestrelmoor Database"), this);
    status->setAttribute(Qt::WA_DeleteOnClose);
    const QList<QWidget*> parts{findChild<QPlainTextEdit*>("txtInstructions"), buttons_};
    for (QWidget* part : parts) part->setEnabled(false);
    status->begin();
    StatusWindow progress(*status);
    try {
        MergeRun(program_.store, file.database(), progress).run();
    } catch (const datafile::Error& error) {
        program_.dialogs().warning(tr("Database Error"), numbered(error));
    }
    QCoreApplication::processEvents();
    for (QWidget* part : parts) part->setEnabled(true);
    status->finish(tr("Merge Complete"));
}
