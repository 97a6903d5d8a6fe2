#pragma once

#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"
#include "platform/values/Literals.h"
#include "ui/Period.h"

namespace forms {
class ComboBox;
} // namespace forms

/// The number that a row of a register keeps in its tag; 0 for a total row, and for a row that isn't there.
qint32 tagOf(const forms::ListView& list, int row);

/// The dot in a state's colour that stands before its name.
QPixmap statusDot(qint32 state);

/// Base of the registers of job lines: criteria over a list with a row for each line and a total row. The
/// list is built anew, whole, from the criteria; the condition then works on the texts of its rows. A
/// register that comes back to the front does so when the session says that its list may be out of date.
class LineRegister : public forms::Screen
{
    Q_OBJECT
protected:
    struct Criteria
    {
        forms::ListView* list;
        Period period;
        forms::ComboBox* worker;
        forms::ComboBox* condition; ///< its first entry is no condition
    };

    void setCriteria(const Criteria& criteria) { m_criteria = criteria; }
    /// The working date, all workers, no condition.
    void resetCriteria();

    void Form_Activate() override;

    /// Builds the list from the criteria, whatever the condition. Throws DatabaseError; the lines before the
    /// one at fault then stand on the list.
    virtual void ExecuteSQL() = 0;
    /// Takes the lines off the list that the condition does not want.
    virtual void applyCondition(const QString& condition) = 0;

    /// Puts the lines on the list, and the total row below them. `read` appends them; what it had appended
    /// when it fails is shown without a total.
    void showLines(const std::function<void(std::vector<forms::ListView::Row>& rows)>& read);
    /// Keeps the lines that `stays` wants, and counts them anew. The total row itself is asked too.
    void keepLines(const std::function<bool(const QStringList& cells)>& stays);

    /// Rebuilds the list under its condition and comes back to the row kept in ReturnIndex; behind the last
    /// line, to that. The total row is no line to work on.
    void conditionStep();
    /// Shows the lines of the worker chosen, and puts the keys there; refuses criteria that make no sense.
    void view();
    /// Puts the keys on the list, on its first line when none is selected.
    void enterList();
    /// Keeps where the selected row is, in the list and on the screen, for the next refresh.
    void keepPosition();
    /// Opens another screen that works on the selected row's line, and refreshes the list after it, once.
    void openOnRow(const std::function<void()>& open);

    /// What the list is about: the lines of all workers or of one, of a card, or of a client in the period or
    /// on all days.
    enum class Search { AllWorkers, Worker, Card, Client, ClientOnAllDays };

    Search SearchMode = Search::AllWorkers;
    QString ViewedWorker;   ///< title; refreshes go by it, whatever the box shows meanwhile
    QString SearchSql;      ///< what the list shows
    qint16 ReturnIndex = 0; ///< position to select after a refresh, from 1; 0: none

private:
    forms::ListView::Row totalRow(size_t lines) const;

    Criteria m_criteria{};
    int m_topRow = -1;      ///< of the list as it stood on the screen; -1: from its beginning
    bool m_opening = false; ///< the refresh after a screen above is under way already
};
