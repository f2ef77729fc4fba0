#include "registration/VolunteerLinks.h"

#include <QGroupBox>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include "platform/widgets/ChoiceBox.h"
#include "platform/widgets/EntryListModel.h"
#include "platform/widgets/FormLayout.h"
#include "platform/widgets/ListMover.h"
#include "platform/widgets/WaitCursor.h"
#include "registration/clsRegistration.h"
#include "registration/clsVolunteer.h"
#include "setup/ClsVolPos.h"
#include "setup/clsCertifications.h"
#include "shell/Program.h"

namespace {

constexpr char playerNames[] =
    "SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name FROM "
    "tblRegistration WHERE tblRegistration![DeletedFlag] = False   AND tblRegistration![PlayerActive] = True %1"
    "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]";

QString namesOfPlayers(const QString& condition) { return QString::fromLatin1(playerNames).arg(condition); }

}  // namespace

VolunteerLinks::VolunteerLinks(Program& program, clsVolunteer& volunteer)
    : program_(program), volunteer_(volunteer), name_(new QLabel(this)) {
    name_->setObjectName(QStringLiteral("lblVolName"));
    name_->setTextFormat(Qt::PlainText);
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(spacing::label);
    layout->addWidget(name_);
    auto* columns = new ColumnRow(this);
    columns->addColumn(playersGroup(), 3);
    positions_ = new ListMover(QStringLiteral("lstVolPositions"), tr("Volunteer Pos&ition(s)"),
                               tr("Positions Availa&ble"), this);
    certifications_ = new ListMover(QStringLiteral("lstVolCertifications"), tr("Certifications Received"),
                                    tr("Available Certifications"), this);
    columns->addColumn(moverGroup(tr("Positions"), positions_), 4);
    columns->addColumn(moverGroup(tr("Certifications"), certifications_), 4);
    layout->addWidget(columns, 1);
    auto* note = new QLabel(tr("Note:  Data from this window is automatically written to or deleted from the "
                               "database.  No \"Save\" is necessary."),
                            this);
    note->setWordWrap(true);
    layout->addWidget(note);
    connect(positions_, &ListMover::moveRequested, this, [this](ListMover::Side from, int index) {
        movePosition(from == ListMover::Right, positions_->entryAt(from, index));
    });
    connect(certifications_, &ListMover::moveRequested, this, [this](ListMover::Side from, int index) {
        moveCertification(from == ListMover::Right, certifications_->entryAt(from, index));
    });
}

QWidget* VolunteerLinks::moverGroup(const QString& title, ListMover* mover) {
    auto* group = new QGroupBox(title, this);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(mover);
    return group;
}

QWidget* VolunteerLinks::playersGroup() {
    auto* group = new QGroupBox(tr("Players"), this);
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(spacing::label);
    const auto addCaption = [&](const QString& text, QWidget* buddy) {
        auto* caption = new QLabel(text, group);
        caption->setBuddy(buddy);
        buddy->setAccessibleName(QString(text).remove(u'&'));
        layout->addWidget(caption);
        layout->addWidget(buddy);
    };
    const auto addButton = [&](const char* name, const QString& caption, void (VolunteerLinks::*press)()) {
        auto* button = new QPushButton(caption, group);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, press);
        layout->addWidget(button);
        return button;
    };
    player_ = new ChoiceBox(ChoiceBox::EmptyFirst, group);
    player_->setObjectName(QStringLiteral("cboVolPlayer"));
    player_->setShownCharacters(24);
    addCaption(tr("Choose &Player (Optional)"), player_);
    add_ = addButton("cmdAddAssociation", tr("&Add Association to Vol"), &VolunteerLinks::addAssociation);
    delete_ = addButton("cmdDeleteAssociation", tr("Delete Association &w/ Vol"), &VolunteerLinks::deleteAssociation);
    associated_ = new QListView(group);
    associated_->setObjectName(QStringLiteral("lstVolPlayers"));
    associatedNames_ = new EntryListModel(this);
    associated_->setModel(associatedNames_);
    associated_->setUniformItemSizes(true);
    associated_->setSpacing(2);
    associated_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    constexpr int leastLines = 5;
    associated_->setMinimumHeight(leastLines * associated_->fontMetrics().lineSpacing());
    associated_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // it takes what the page has left
    addCaption(tr("Pla&yers Associated with this Volunteer"), associated_);
    layout->setStretchFactor(associated_, 1);
    connect(player_, &ChoiceBox::edited, this, &VolunteerLinks::choosePlayer);
    const auto take = [this](const QModelIndex& index) { choosePlayer(associatedNames_->entryAt(index.row())); };
    connect(associated_, &QListView::clicked, this, take);
    connect(associated_, &QListView::activated, this, take);
    return group;
}

std::vector<QString> VolunteerLinks::names(const QString& query, const char* column) const {
    return program_.store.database().readList(query, QLatin1String(column));
}

void VolunteerLinks::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) refresh();
}

void VolunteerLinks::refresh() {
    if (!isVisible()) return;
    const bool any = volunteer_.VolId != 0;
    setEnabled(any);
    name_->setText(any ? tr("Volunteer: %1, %2").arg(volunteer_.VolLastName(), volunteer_.VolFirstName())
                       : tr("No volunteer"));
    readPlayers();
    readAssociations();
    choosePlayer({});
    readCertifications();
}

/// Positions are filled for this player.
void VolunteerLinks::choosePlayer(const QString& entry) {
    const WaitCursor wait;
    clsRegistration player(program_.store);
    const bool found = !entry.isEmpty() && player.FindPlayerRecord(entry, false, true);
    playerId_ = found ? player.PlayerId : 0;
    player_->setText(found ? entry : QString());
    readPositions();
    showState();
}

void VolunteerLinks::showState() {
    bool linked = false;
    if (playerId_ != 0) volunteer_.FindRegVolRecord(playerId_, volunteer_.VolId, linked);
    add_->setEnabled(playerId_ != 0);
    delete_->setEnabled(linked);
}

void VolunteerLinks::addAssociation() {
    const WaitCursor wait;
    volunteer_.AddRegVolRecord(playerId_, volunteer_.VolId, QStringLiteral("Other"));
    readAssociations();
    showState();
    player_->setFocus(Qt::OtherFocusReason);
}

void VolunteerLinks::deleteAssociation() {
    const WaitCursor wait;
    bool linked = false;
    volunteer_.FindRegVolRecord(playerId_, volunteer_.VolId, linked);
    if (!linked) return;
    datafile::Transaction transaction(program_.store.database());
    volunteer_.DeleteRegVolRecord();
    volunteer_.DeleteAllVolToPositionRecords(volunteer_.VolId, playerId_);
    transaction.commit();
    readAssociations();
    choosePlayer({});
    player_->setFocus(Qt::OtherFocusReason);
}

void VolunteerLinks::movePosition(bool add, const QString& name) {
    const WaitCursor wait;
    ClsVolPos position(program_.store);
    if (!position.FindVolPosRecord(name, false, true) || position.VolPosId < 1 || volunteer_.VolId < 1) return;
    if (add)
        volunteer_.AddVolToPositionRecord(volunteer_.VolId, playerId_, position.VolPosId);
    else
        volunteer_.DeleteVolToPositionRecord(volunteer_.VolId, playerId_, position.VolPosId);
    readPositions();
    Q_EMIT said(add ? tr("Volunteer Position Added.") : tr("Volunteer Position Deleted."));
}

void VolunteerLinks::moveCertification(bool add, const QString& name) {
    const WaitCursor wait;
    clsCertifications certification(program_.store);
    if (!certification.FindCertRecord(name, false, true) || certification.CertificationId < 1 || volunteer_.VolId < 1)
        return;
    if (add)
        certification.AddVolCertificationRecord(volunteer_.VolId, certification.CertificationId);
    else
        certification.DeleteVolCertificationRecord(volunteer_.VolId, certification.CertificationId);
    readCertifications();
    Q_EMIT said(add ? tr("Certification Added.") : tr("Volunteer Certification Deleted."));
}

void VolunteerLinks::readPlayers() {
    const auto entries = names(namesOfPlayers({}), "Name");
    player_->setEntries(QStringList(entries.begin(), entries.end()));
}

void VolunteerLinks::readAssociations() {
    associatedNames_->setEntries(
        names(namesOfPlayers(QStringLiteral("AND tblRegistration![PlayerId] IN (SELECT "
                                            "tblRegistrationVolunteer![PlayerId] FROM tblRegistrationVolunteer WHERE "
                                            "tblRegistrationVolunteer![VolId] = %1 AND "
                                            "tblRegistrationVolunteer![DeletedFlag] = False) ")
                                 .arg(volunteer_.VolId())),
              "Name"));
}

void VolunteerLinks::readPositions() {
    for (const auto& [side, in] : {std::pair(ListMover::Left, "IN"), std::pair(ListMover::Right, "NOT IN")})
        positions_->setEntries(
            side, names(QStringLiteral("SELECT [VolPosName] FROM tblVolunteerPositions WHERE "
                                       "tblVolunteerPositions![DeletedFlag] = False   AND "
                                       "tblVolunteerPositions![VolPosId] %1 (SELECT tblVolToPosition![VolPosId] FROM "
                                       "tblVolToPosition WHERE tblVolToPosition![VolId] = %2 AND "
                                       "tblVolToPosition![PlayerId] = %3 AND tblVolToPosition![DeletedFlag] = False) "
                                       "ORDER by [VolPosName]")
                            .arg(QLatin1String(in))
                            .arg(volunteer_.VolId())
                            .arg(playerId_),
                        "VolPosName"));
}

void VolunteerLinks::readCertifications() {
    for (const auto& [side, in] : {std::pair(ListMover::Left, "IN"), std::pair(ListMover::Right, "NOT IN")})
        certifications_->setEntries(
            side, names(QStringLiteral("SELECT [CertificationName] FROM tblCertifications WHERE "
                                       "tblCertifications![DeletedFlag] = False   AND "
                                       "tblCertifications![CertificationId] %1 (SELECT "
                                       "tblVolunteerCertifications![CertificationId] FROM tblVolunteerCertifications "
                                       "WHERE tblVolunteerCertifications![VolId] = %2 AND "
                                       "tblVolunteerCertifications![DeletedFlag] = False) ORDER by "
                                       "[CertificationName]")
                            .arg(QLatin1String(in))
                            .arg(volunteer_.VolId()),
                        "CertificationName"));
}
