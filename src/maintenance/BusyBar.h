#pragma once

#include "platform/archive/Archive.h"
#include "platform/datafile/DataFile.h"
#include "shell/frmStatusBar.h"

/// For the length of a work on whole files: the busy pointer, and a bar that takes the place of all input.
class BusyBar {
public:
    /// The work runs from 0 to `maximum`; with 0 nobody knows how far it has come.
    explicit BusyBar(const QString& text, int maximum = whole);
    ~BusyBar();
    BusyBar(const BusyBar&) = delete;
    BusyBar& operator=(const BusyBar&) = delete;

    static constexpr int whole = 100;
    void show(int position, const QString& text = {}) { bar_.Update(position, text); }
    /// Moves the bar from `from` on as the work is told to come on, 0 to `whole`.
    archive::Progress from(int from, const QString& text = {}) {
        return [this, from, text](int percent) { show(from + percent, text); };
    }

    /// The same for work that is told in the midst of a statement: the bar is painted, and nothing else happens.
    datafile::Progress quietlyFrom(int from) {
        return [this, from](int percent) { bar_.Paint(from + percent); };
    }

private:
    frmStatusBar bar_;
};
