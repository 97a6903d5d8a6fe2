#pragma once

#include "core/store/ShopMoment.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"
#include "platform/values/Literals.h"
#include "registers/JobLines.h"
#include "ui/Period.h"

#include <memory>
#include <optional>
#include <vector>

class HelpLine;
class QLineEdit;
class QPushButton;
namespace forms {
class ComboBox;
}

/// The number that a row of a register keeps in its tag; 0 for a total row, and for a row that isn't there.
qint32 tagOf(const forms::ListView& list, int row);

/// The dot in a state's colour that stands before its name.
QPixmap statusDot(qint32 state);

/// What the searches for lines begin with.
inline const QString allLines = u"Select * from JOBS_Detail where "_s;

/// Base of the registers of job lines: criteria over a list with a row for each line and a total row. The
/// list is built anew, whole, from the criteria; the condition then takes lines off it. A
/// register that comes back to the front does so when the session says that its list may be out of date.
class LineRegister : public forms::Screen
{
    Q_OBJECT
public:
    /// What a register begins with; what is left out is the working date, all workers, no condition.
    struct Beginning
    {
        QDate from;
        QDate to;
        QString worker = {};
        QString condition = {};
        QString jobId = {};  ///< of a card, or the code of a line of it; then nothing else counts
        bool inShop = false; ///< without the lines that are delivered or canceled, until another view
    };

    /// Shows the register with these criteria.
    void ShowLines(const Beginning& beginning);

protected:
    /// What the list is about: the lines of all workers or of one, of a card, or of a client in the period or
    /// on all days.
    enum class Search { AllWorkers, Worker, Card, Client, ClientOnAllDays };

    struct Criteria
    {
        forms::ListView* list;
        Period period;
        QLineEdit* jobId;
        forms::ComboBox* worker;
        forms::ComboBox* condition; ///< its first entry is no condition
        QPushButton* view;
        QPushButton* find;
        HelpLine* help;
        bool balances = false; ///< the rows tell them, as they are at the end of the days
    };

    /// For the constructor.
    void setCriteria(const Criteria& criteria);

    /// Takes 97% of the display's height, sets the criteria to begin with, and fills the list.
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;

    /// Builds the list from the criteria, whatever the condition. Throws DatabaseError; the lines before the
    /// one at fault then stand on the list.
    virtual void ExecuteSQL();
    /// The statement that finds what the list is about.
    virtual QString searchText() const;
    /// The order of the lines, with "order by".
    virtual QString order() const = 0;
    /// The row of a line.
    virtual forms::ListView::Row rowOf(const RegisterLine& line, LineNames& names) const = 0;
    /// How the operator gets at a client's lines of other days, for a list that has none of these.
    virtual QString otherDaysHint() const = 0;
    /// Takes the lines off the list that the condition does not want: those of other states.
    virtual void applyCondition(const QString& condition);
    /// Lets the operator find a client, and lists the client's lines.
    virtual void quickFind() = 0;

    /// Keeps the lines of a state; takes the text of the condition.
    void RemoveUnwanted(const QString& condition);
    /// Keeps the lines that `stays` wants, and counts them anew.
    void keepLines(const std::function<bool(const RegisterLine& line)>& stays);

    /// Rebuilds the list under its condition, unless it shows what it would show then, and comes back to the
    /// row kept in ReturnIndex. Where the last
    /// line has left the list none is selected: a key must not work on a line that nobody chose.
    void conditionStep();
    /// Shows the lines of the worker chosen, and puts the keys there; refuses criteria that make no sense.
    void view();
    /// Shows the client's lines, whatever the condition, and puts the keys there.
    void showClient(const QString& client, Search mode);
    /// Puts the keys on the list, on its first line when none is selected.
    void enterList();
    /// Keeps where the selected row is, in the list and on the screen, for the next refresh.
    void keepPosition();
    /// Calls `write`, which changes this one line, and shows the line as it is then; the list is read anew
    /// only if it was out of date before. The position stays.
    void changeLine(qint32 line, const std::function<void()>& write);
    /// Opens another screen that works on the selected row's line, and refreshes the list after it, once.
    void openOnRow(const std::function<void()>& open);
    /// The line of the selected row; null for the total row, and for none.
    const RegisterLine* selected() const;
    /// Its number; 0 for none.
    qint32 selectedLine() const;
    LineNames& names() const { return m_shown->names; }
    /// "with the job date 10-Feb-2024": which lines the days mean.
    QString daysText() const;
    Period period() const { return m_criteria.period; }

    Search SearchMode = Search::AllWorkers;
    QString DateField = u"Date"_s; ///< the column that the days range over
    QString ViewedWorker;          ///< title; refreshes go by it, whatever the box shows meanwhile
    QString SearchClient;          ///< the client that Quick Find gave
    QString SearchSql;             ///< what the list shows
    qint16 ReturnIndex = 0;        ///< position to select after a refresh, from 1; 0: none

private:
    /// What the list was filled from.
    struct Filling
    {
        ShopMoment moment;
        QString search;
        QDate balancesUpTo;
        QString condition;
        bool inShop = false;
        bool operator==(const Filling&) const = default;
    };

    void resetCriteria();
    void findJob();
    int rowOfCode(const QString& typed) const;
    void leaveCard();
    void openLine();
    void explainEmpty(const QString& condition);
    void showLines(bool withTotal);
    std::optional<Filling> filling() const;
    void narrow();
    void showPosition();
    bool readAgain(qint32 line);
    void noteFilled();
    bool isLine(int row) const { return row >= 0 && size_t(row) < m_shown->lines.size(); }
    forms::ListView::Row totalRow(size_t lines) const;

    Criteria m_criteria{};
    Beginning m_beginning;
    /// What is on the list, without the total. Its rows are made of this, and keep it until others come.
    struct Shown
    {
        std::vector<RegisterLine> lines{};
        LineNames names{{}};
    };
    std::shared_ptr<Shown> m_shown = std::make_shared<Shown>();
    quint64 m_filledAt = 0;             ///< count of the changes that the list shows
    std::optional<Filling> m_filling{}; ///< none while a fault has kept lines off the list
    bool m_inShop = false;              ///< lines that are delivered or canceled are left out
    int m_topRow = -1;                  ///< of the list as it stood on the screen; -1: from its beginning
    bool m_opening = false;             ///< the refresh after a screen above is under way already
};
