#pragma once

#include <QIODevice>

namespace report {

/// Text on its way into a file, gathered into blocks.
class TextOut {
public:
    explicit TextOut(QIODevice& file) : file_(file) { block_.reserve(blockSize + blockSize / 4); }
    TextOut& operator<<(const char* text) { return block_.append(text), passOn(); }
    TextOut& operator<<(const QByteArray& text) { return block_.append(text), passOn(); }
    TextOut& operator<<(char character) { return block_.append(character), *this; }
    TextOut& operator<<(int number) { return *this << QByteArray::number(number); }
    /// The block itself, for what is written character by character.
    QByteArray& block() { return block_; }
    void flush() {
        file_.write(block_);
        block_.resize(0);
    }

private:
    static constexpr qsizetype blockSize = 1 << 16;

    TextOut& passOn() {
        if (block_.size() >= blockSize) flush();
        return *this;
    }

    QIODevice& file_;
    QByteArray block_;
};

}  // namespace report
