#pragma once

#include "masters/BringIn.h"
#include "platform/forms/Screen.h"
#include "platform/values/ListTarget.h"

#include <QString>
#include <memory>

namespace Ui {
class SummaryList;
}

/// Base of the lists of masters: a search box over a list of titles, from which records are added and opened.
/// The list refills when it comes back to the front and the session says that it may be out of date.
class SummaryList : public forms::Screen
{
    Q_OBJECT
public:
    ~SummaryList() override;

protected:
    /// Where the search for the typed text begins: behind the first entry, which is then the last to be
    /// tried, or at it.
    enum class SearchFrom { SecondEntry, FirstEntry };

    /// What tells one list from another.
    struct Kind
    {
        QString name;      ///< the screen's name
        QString title;     ///< heading and window title
        QString oneRecord; ///< as in "Ctrl+A adds a client"
        QString table;     ///< where the records lie
        QString keyField;  ///< the field that the list shows
        SearchFrom searchFrom = SearchFrom::SecondEntry;
    };

    explicit SummaryList(const Kind& kind);
    void setButtonCaptions(const QString& add, const QString& back);
    /// What the list's keys do, at the foot of the screen.
    void setHelp(const QString& help);
    /// Lets records of this kind be brought in from a file, by a button.
    void offerBringIn(bringin::Kind records);
    /// The title of the selected record; empty without one.
    QString selectedTitle() const;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;

private:
    virtual void fill(ListTarget& list) = 0;
    virtual void addRecord() = 0;
    virtual void editRecord(qint16 id) = 0;

    void search(const QString& text);
    void openSelected();

    const Kind m_kind;
    const std::unique_ptr<Ui::SummaryList> ui;
    quint64 m_filledAt = 0; ///< count of the changes that the list shows
};
