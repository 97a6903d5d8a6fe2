#pragma once

#include "platform/values/Literals.h"

#include <QString>
#include <stdexcept>

/// An error whose text is meant for the operator: the code that catches it shows `text()` unchanged.
class OperatorError : public std::runtime_error
{
public:
    explicit OperatorError(const QString& text)
        : std::runtime_error(text.toStdString())
        , m_text(text)
    {
    }

    const QString& text() const { return m_text; }
    /// Puts what the operator must know first before the text, on a line of its own.
    void putBefore(const QString& sentence) { m_text = sentence + u"\r\n"_s + m_text; }

private:
    QString m_text;
};

/// A number does not fit the place it is meant for (a 16-bit id above 32767, say). Its text names the field,
/// in the operator's words, the number and the limit that it passes; an empty field or number is left out.
class OverflowError : public OperatorError
{
public:
    enum class Beyond { Highest, Lowest };
    OverflowError(const QString& field, const QString& number, Beyond beyond, const QString& limit)
        : OperatorError(QString(u"Overflow: "_s + field + u' ' + number).simplified() +
                        (beyond == Beyond::Highest ? u" is too large. The highest possible is "_s
                                                   : u" is too small. The lowest possible is "_s) +
                        limit + u'.')
    {
    }
};

/// A text cannot be read as the number or date that is asked for.
class TypeMismatchError : public OperatorError
{
public:
    TypeMismatchError()
        : OperatorError(u"Type mismatch"_s)
    {
    }
};

/// A row number lies outside its array.
class SubscriptError : public OperatorError
{
public:
    SubscriptError()
        : OperatorError(u"Subscript out of range"_s)
    {
    }
};
