#include "media/frmHandNote.h"

#include "media/Bitmap.h"
#include "platform/forms/Keys.h"
#include "platform/forms/Pictures.h"
#include "ui_frmHandNote.h"

namespace {

/// A larger picture is brought down to this before it is drawn on.
constexpr QSize largestSheet(3000, 3000);

} // namespace

frmHandNote::frmHandNote()
    : ui(std::make_unique<Ui::frmHandNote>())
{
    ui->setupUi(this);
    on(ui->Command1, &QPushButton::clicked, [this] { ui->picCanvas->setTool(Canvas::Tool::Pen); });
    on(ui->Command2, &QPushButton::clicked, [this] { ui->picCanvas->setTool(Canvas::Tool::Eraser); });
    on(ui->Command3, &QPushButton::clicked, [this] { ui->picCanvas->clear(); });
    on(ui->Command4, &QPushButton::clicked, &frmHandNote::accept);
    on(ui->Command5, &QPushButton::clicked, [this] { unload(); });
}

frmHandNote::~frmHandNote() = default;

void frmHandNote::TakeSnap(const QString& fileName, bool& cancelled)
{
    NoteFile = fileName;
    Cancelled = true;
    ui->picCanvas->load(forms::loadPicture(fileName, largestSheet).toImage());
    showModal();
    cancelled = Cancelled;
}

void frmHandNote::Form_KeyPress(int& key)
{
    if (key == forms::key::CtrlZ) {
        key = 0;
        ui->picCanvas->undo();
    }
    Screen::Form_KeyPress(key);
}

void frmHandNote::accept()
{
    bitmap::write(ui->picCanvas->image(), NoteFile);
    Cancelled = false;
    unload();
}
