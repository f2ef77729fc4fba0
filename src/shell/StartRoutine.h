#pragma once

#include <functional>

#include "shell/Program.h"

/// The dialog in which a user picks a data file.
FileRequest dataFileRequest();

/// What the start asks of parts that it does not know.
struct StartSteps {
    std::function<bool()> correctVersion;   ///< brings the data file to the current version; false: it could not
    std::function<void()> loadPreferences;  ///< fills the globals
    std::function<void()> loadNavigator;    ///< hidden
    std::function<void()> showSplash;       ///< returns when it is closed
    std::function<void()> showNavigator;
};

/// The road from the program's start to its first usable screen: find the data file, bring it up to date, load the
/// preferences, show the splash if wanted and then the navigator.
class StartRoutine {
public:
    enum class Outcome { Running, Ended };

    StartRoutine(Program& program, StartSteps steps);
    /// Ended when the user gave up, or when something failed, of which he has been told; no window is up then.
    Outcome Main();

private:
    Outcome run();
    QString firstPath() const;
    bool searchDataFile();
    void savePath();
    void forgetPickedFile();

    Program& program_;
    StartSteps steps_;
    QString storedPath_;  ///< as the settings had it before this start
    bool picked_ = false;
};
