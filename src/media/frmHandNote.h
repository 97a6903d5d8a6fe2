#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmHandNote;
}

/// A pad on which the tailor sketches a note of a garment. It works on a picture file alone.
class frmHandNote : public forms::Screen
{
    Q_OBJECT
public:
    frmHandNote();
    ~frmHandNote() override;

    /// Opens the pad on a file, with the picture that the file holds already. `cancelled` stays true unless
    /// the note was written.
    void TakeSnap(const QString& fileName, bool& cancelled);

protected:
    void Form_KeyPress(int& key) override;

private:
    void accept();

    std::unique_ptr<Ui::frmHandNote> ui;
    QString NoteFile;
    bool Cancelled = true;
};
