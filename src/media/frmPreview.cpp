#include "media/frmPreview.h"

#include "platform/forms/Metrics.h"
#include "platform/forms/Pictures.h"
#include "ui_frmPreview.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

constexpr int Around = forms::twips(500);
/// A picture with longer sides is brought down to this, to spare the memory.
constexpr QSize LargestShown(5000, 5000);

} // namespace

frmPreview::frmPreview()
    : ui(std::make_unique<Ui::frmPreview>())
{
    ui->setupUi(this);
}

frmPreview::~frmPreview() = default;

void frmPreview::ShowImage(const QString& fileName)
{
    if (const QPixmap picture = forms::loadPicture(fileName, LargestShown); !picture.isNull()) {
        ui->Image2->setMargin(0);
        ui->Image2->setPixmap(picture);
    }
    resize(ui->Image2->sizeHint() + QSize(Around, Around));
    showModal();
}

/// The arrow and page keys move a picture that is larger than the display.
void frmPreview::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    const auto* scroller = findChild<QScrollArea*>();
    if (!scroller)
        return;
    QScrollBar* across = scroller->horizontalScrollBar();
    QScrollBar* down = scroller->verticalScrollBar();
    const auto move = [](QScrollBar* bar, int pages, int parts) {
        bar->setValue(bar->value() + bar->pageStep() * pages / parts);
    };
    switch (key) {
    case forms::key::Left:
        return move(across, -1, 8);
    case forms::key::Right:
        return move(across, 1, 8);
    case forms::key::Up:
        return move(down, -1, 8);
    case forms::key::Down:
        return move(down, 1, 8);
    case forms::key::PageUp:
        return move(down, -1, 1);
    case forms::key::PageDown:
        return move(down, 1, 1);
    }
}
