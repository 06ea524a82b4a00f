#pragma once
// How a short field of a tool's output or of a cue sheet is read as a number: by its
// leading numeric part.

#include <QByteArrayView>

namespace torvane {

// Blanks are skipped, a sign may lead, then digits; the first character that cannot belong
// to the number ends it, and a fraction is cut off. No number at all gives 0.
inline int LeadingNumber(QByteArrayView field) {
    qsizetype i = 0;
    while (i < field.size() && field[i] == ' ')
        ++i;
    int sign = 1;
    if (i < field.size() && (field[i] == '+' || field[i] == '-')) {
        sign = field[i] == '-' ? -1 : 1;
        ++i;
    }
    // Fields are a few characters wide; the cap keeps a long run of digits from overflowing.
    constexpr int kCap = 100000000;
    int value = 0;
    for (; i < field.size() && field[i] >= '0' && field[i] <= '9'; ++i)
        value = value >= kCap ? kCap : value * 10 + (field[i] - '0');
    return sign * value;
}

}  // namespace torvane
