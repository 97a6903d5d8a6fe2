#pragma once

#include "accounts/Wages.h"
#include "platform/forms/ListView.h"

/// The list of a worker's lines with their wages and the running balance.
class WageList : public forms::ListView
{
    Q_OBJECT
public:
    explicit WageList(QWidget* parent = nullptr);

    void setLines(std::vector<wages::Line> lines);
    const std::vector<wages::Line>& lines() const { return m_lines; }
    /// "12 lines · 3450.00"; empty without lines.
    QString total() const;
    /// Shows the lines on paper.
    void print(const QString& worker);

private:
    std::vector<wages::Line> m_lines; ///< one for each row
};
