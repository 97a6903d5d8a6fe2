#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class ctlInfo;
}

/// Part of the system's definition; no screen uses it today.
///
/// A small panel with a contact's details; a click on its picture puts it away.
class ctlInfo : public QWidget
{
    Q_OBJECT
public:
    explicit ctlInfo(QWidget* parent = nullptr);
    ~ctlInfo() override;

    void ShowInfo(const QString& text);
    void HideInfo();

private:
    std::unique_ptr<Ui::ctlInfo> ui;
};
