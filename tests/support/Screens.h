#pragma once

#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLabel>
#include <QTest>

// How a test uses a screen: by the object names of its controls.

/// A control by its object name; fails the test when there is none.
template <class Kind = QWidget>
Kind* control(QWidget* screen, const char* name) {
    auto* found = screen->findChild<Kind*>(QLatin1String(name));
    EXPECT_TRUE(found) << name;
    return found;
}
inline void press(QWidget* screen, const char* name) { QTest::mouseClick(control(screen, name), Qt::LeftButton); }
/// Replaces what stands in a box by what is typed, with an input method where a plain keyboard has no key for it.
inline void type(QWidget* screen, const char* name, const QString& text) {
    QWidget* box = control(screen, name);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Delete);
    const bool plain = std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 128; });
    if (plain) return QTest::keyClicks(box, text);
    QInputMethodEvent composed;
    composed.setCommitString(text);
    QCoreApplication::sendEvent(box, &composed);
}
inline QString status(QWidget* screen) { return control<QLabel>(screen, "lblStatus")->text(); }
