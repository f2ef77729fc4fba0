#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include "Comparison.h"
#include "RawFile.h"
#include "SampleFile.h"
#include "platform/text/Collation.h"
#include "platform/widgets/SearchCombo.h"

// The list in which a player is looked up: read from the file, shown, searched by typing.

namespace {

constexpr char listQuery[] =
    "SELECT *, ([PlayerLastName] & \", \" & [PlayerFirstName] & \" - \" & [PlayerBirthDate]) as Name "
    "FROM tblRegistration WHERE tblRegistration![DeletedFlag] = False "
    "ORDER BY [PlayerLastName], [PlayerFirstName], [PlayerBirthDate]";

class Measurements {
public:
    explicit Measurements(int players) : league_(players), raw_(league_.context.dataFilePath), entries_(read()) {
        combo_.resize(400, combo_.sizeHint().height());
        combo_.show();
        combo_.setEntries(std::vector<QString>(entries_));
        QApplication::processEvents();
    }

    void addTo(Comparison& comparison) {
        comparison.add(
            {"read the list of players", league_.size, {.times = 1.3}}, [this] { benchmark::DoNotOptimize(read()); },
            [this] { benchmark::DoNotOptimize(rawRead()); });
        comparison.add({"show the list in its box", league_.size, {.total = 50e-3}}, [this] {
            combo_.setEntries(std::vector<QString>(entries_));
            combo_.setCurrentIndex(0);
            QApplication::processEvents();
        });
        comparison.add({"open the box's list and close it", league_.size, {.total = 50e-3}}, [this] {
            combo_.showPopup();
            QApplication::processEvents();
            combo_.hidePopup();
            QApplication::processEvents();
        });
        const QString late = QString(entries_.back()).left(6);
        comparison.add({"type a key of a late entry", league_.size, {.total = 30e-3}}, [this, late] {
            if (typed_ >= late.size()) startAnew();
            type(late[typed_++]);
        });
        comparison.add({"type a key that no entry has", league_.size, {.total = 30e-3}}, [this] {
            if (++typed_ > 6) startAnew();
            type(u'#');
        });
    }

private:
    std::vector<QString> read() {
        std::vector<QString> entries = league_.database->readList(listQuery, "Name");
        placeAccented(entries);
        return entries;
    }

    std::vector<QString> rawRead() {
        std::vector<QString> entries;
        while (list_.step()) entries.push_back(list_.text(0));
        list_.reset();
        return entries;
    }

    void startAnew() {
        combo_.lineEdit()->clear();
        typed_ = 0;
    }

    void type(QChar letter) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QApplication::sendEvent(&combo_, &press);
        QApplication::processEvents();
    }

    SampleLeague league_;
    RawFile raw_;
    RawStatement list_{raw_,
                       "SELECT PlayerLastName || ', ' || PlayerFirstName || ' - ' || PlayerBirthDate "
                       "FROM tblRegistration WHERE DeletedFlag = 0 "
                       "ORDER BY PlayerLastName, PlayerFirstName, PlayerBirthDate"};
    std::vector<QString> entries_;
    SearchCombo combo_{"Players"};
    int typed_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});  // "no raise() offscreen"
    QApplication application(count, arguments);
    Comparison comparison(&count, arguments);
    std::vector<std::unique_ptr<Measurements>> all;
    for (const int players : leagueSizes) {
        all.push_back(std::make_unique<Measurements>(players));
        all.back()->addTo(comparison);
    }
    return comparison.run();
}
