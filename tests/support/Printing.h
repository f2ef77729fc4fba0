#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <ostream>

// How GoogleTest shows Qt's values in a failure. Every test file that compares such values includes this.

inline void PrintTo(const QString& text, std::ostream* out) {
    if (text.isNull())
        *out << "(null)";
    else
        *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(QChar character, std::ostream* out) { PrintTo(QString(character), out); }
inline void PrintTo(const QStringList& texts, std::ostream* out) {
    *out << '{';
    for (const QString& text : texts) PrintTo(text, out), *out << ' ';
    *out << '}';
}
inline void PrintTo(QDate date, std::ostream* out) { *out << date.toString(Qt::ISODate).toStdString(); }
inline void PrintTo(QTime time, std::ostream* out) { *out << time.toString(Qt::ISODate).toStdString(); }
