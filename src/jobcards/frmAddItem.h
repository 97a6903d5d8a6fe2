#pragma once

#include "core/store/Codes.h"
#include "jobcards/MeasurementGuard.h"
#include "platform/forms/Screen.h"

#include <QHash>
#include <memory>

class PictureBox;
class QLabel;
class clsJobCardData;

namespace Ui {
class frmAddItem;
}

/// The screen on which one garment of a job card is ordered: item, measurements, quantity, fee, remarks,
/// cloth colour and pictures. A returning client's measurements come from the last order of the same item. It
/// writes into the card's rows only, on OK; pictures alone are put on the disk, and deleted from it, at once.
class frmAddItem : public forms::Screen
{
    Q_OBJECT
public:
    frmAddItem();
    ~frmAddItem() override;

    /// Opens for a new line of the client's card. True when the operator left without one.
    bool ItemDetails(clsJobCardData& rows, qint32 clientID);
    /// Opens a row of the card. True when the operator left it as it was. Throws SubscriptError.
    bool EditItemDetails(clsJobCardData& rows, qint32 clientID, qint32 rowIndex);

    /// Fills the grid with the measurements of the client's last order of the item, or with the item's
    /// template.
    void LoadLastConfig(qint32 itemID, qint32 clientID);
    /// Fills the grid with the item's template; an item that is gone leaves it empty.
    void LoadEmptyItems(qint32 itemID);
    /// Adds the measurements of a line. A missing value is empty.
    void LoadEditItems(const QString& names, const QString& values);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void prepare(RecordMode mode, clsJobCardData& rows, qint32 clientID);
    void showRow();

    void openItems();
    void typeItem(int& key);
    void chooseItem();
    void addPair(const QString& line);
    void lookAtMeasurements();
    QString unusualMeasurements() const;

    void chooseColor();
    void takePicture(PictureBox& pic, QLabel& picPath, int number);
    void drawNote();
    QString newPicture(int number) const;
    void selectSecondPicture();
    void clearPicture(PictureBox& pic, QLabel& picPath);
    void showPicture(PictureBox& pic, QLabel& picPath, const QString& link);
    QString linkOf(const QLabel& picPath) const;
    static void preview(const QLabel& picPath);
    void clear();

    void accept();
    bool refuses(bool refused, const QString& message, QWidget& field);
    void writeRow();

    std::unique_ptr<Ui::frmAddItem> ui;

    bool LineCancelled = true;
    RecordMode LineMode = RecordMode::New;
    clsJobCardData* JobRows = nullptr;
    qint32 ClientID = 0;
    qint32 RowIndex = 0;
    MeasurementGuard m_guard;
    qsizetype m_unusual = 0;                   ///< measurements that the guard doubts
    QHash<const QLabel*, QString> m_lostLinks; ///< of pictures that the shop does not have
};
