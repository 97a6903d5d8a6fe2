#pragma once

#include <QLabel>
#include <QScrollBar>
#include <QWidget>
#include <memory>
#include <vector>

class ValueReason;
class swTextBox;

/// The measurements of one garment: a scrolling column of captions with a box beside each. Rows are numbered
/// from 0 and are made as they are added; row 0 is always there, hidden while Count() is 0.
///
/// Heights, positions and the scroll bar are counted in twips.
class ItemDetails : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString Language READ Language WRITE setLanguage)
public:
    explicit ItemDetails(QWidget* parent = nullptr);
    ~ItemDetails() override;

    qint16 Count() const { return m_count; }
    /// "Hindi" gives the captions of rows added from then on the font of the Hindi texts.
    QString Language() const { return m_language; }
    void setLanguage(const QString& language) { m_language = language; }

    /// Gives the focus to the first value, if there is one.
    void SetFocusToList();
    /// Adds a row at the end. It never replaces one: call ClearList before filling in another garment. Throws
    /// OverflowError past 32767 rows.
    void AddFeild(const QString& caption, const QString& value);
    void ClearList();
    /// Hands back the caption of a row, whole, and its value as it shows: a line break pasted into the box
    /// reads as a blank. Throws SubscriptError.
    void ListItemText(QString& name, QString& value, qint32 index) const;
    /// Shows to each row why its value should be looked at once more, quietly beside it; empty for none. The
    /// reason goes when its value is typed anew.
    void setReasons(const QStringList& reasons);

    /// Paint a caption as selected (white on black) or plain.
    static void lblGotFocus(QLabel& label);
    static void lbllostFocus(QLabel& label);

Q_SIGNALS:
    /// The focus has left a value.
    void valueLeft();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row
    {
        std::unique_ptr<QLabel> lblCap;
        std::unique_ptr<swTextBox> txtValue;
        ValueReason* reason; ///< in the box
        QString caption;     ///< whole; the label may have to shorten it
    };

    void makeRow();
    void fillRow(Row& row, const QString& caption, const QString& value);
    void rowGotFocus(size_t index);
    void updateFocusProxy();

    void layOut();
    void placeRow(size_t index);
    int rowHeight() const;
    int rowTop(size_t index) const;
    int hiddenHeight() const;
    void updateScrollBar();
    void movePanel(int shift);

    QWidget* Picture2;
    QWidget* Picture1;
    QScrollBar* VScroll1;
    std::vector<Row> m_rows;
    qint16 m_count = 0;
    int m_panelHeight;
    int m_shift = 0; ///< of the panel, upwards
    QString m_language;
};
