#pragma once

#include <QString>

namespace forms {
class ComboBox;
}

/// What the operator types into a combo that completes names (AutoSearchCombo), letter by letter. The combo
/// itself keeps an entry's name when no entry begins with what is typed; this keeps the typing.
class TypedName
{
public:
    /// Takes a key of the combo. For its key press, before AutoSearchCombo.
    void take(const forms::ComboBox& combo, int key);
    void clear();
    /// What was typed when no entry of the combo begins with it; else empty.
    const QString& unknown() const { return m_unknown; }

private:
    QString m_unknown;
};
