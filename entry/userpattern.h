// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QString>

/// Regular expression that the designer of a form adds to an input format. It is compiled when it is set, not at each
/// key. The whole text must match; an empty pattern lets every text in, an invalid one none. A pattern that takes the
/// matcher to its limit on some text does not match it.
class UserPattern
{
public:
    UserPattern() = default;
    explicit UserPattern(const QString &pattern);

    QString pattern() const { return m_pattern; }
    bool matches(const QString &text) const;

private:
    QString m_pattern;
    QRegularExpression m_wholeText; ///< unused while the pattern is empty or invalid
    bool m_isValid = true;
};
