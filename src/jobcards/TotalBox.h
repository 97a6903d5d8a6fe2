#pragma once

#include <QLineEdit>

/// A box that keeps its amount in money form under the typing hand: the decimal point always stands, typing
/// or erasing it steps over it, and the caret stays where it is as seen from the point.
class TotalBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit TotalBox(QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void reformat(const QString& typed);
    int filterKey(int key);
};
