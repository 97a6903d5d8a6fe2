#pragma once

#include "core/store/ShopMoment.h"
#include "platform/forms/Screen.h"
#include "registers/ClientHistory.h"

#include <memory>
#include <optional>

class QPushButton;
namespace forms {
class Thumbnails;
}
namespace Ui {
class frmClientFolder;
}

/// A client's folder: the cards with their states, and the measurements of each garment through time, one
/// column an order, what changed from one to the next marked.
class frmClientFolder : public forms::Screen
{
    Q_OBJECT
public:
    frmClientFolder();
    ~frmClientFolder() override;

    /// Opens the folder of a client. Throws ado::NoCurrentRecordError for one that is not there.
    void ShowClient(const QString& title);

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& key) override;

private:
    const history::Garment* chosenGarment() const;
    void showWhetherOlder();
    void showCards();
    void showGarments();
    void showMeasurements();
    void showHowMany(size_t orders);
    void showPictures(const history::Garment& garment);
    void showArrivedPictures();
    void openCard();
    void print();

    const std::unique_ptr<Ui::frmClientFolder> ui;
    QString m_client;
    std::vector<history::Garment> m_garments;
    struct Picture
    {
        QPushButton* button;
        QString path; ///< empty: the file is gone
    };
    std::vector<Picture> m_pictures;
    forms::Thumbnails* m_thumbnails;
    std::optional<ShopMoment> m_shown;
    QString m_oldBooks; ///< the file of the newest; empty: there are none
};
