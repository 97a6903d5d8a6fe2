#include "jobcards/frmAddItem.h"

#include "core/store/DE.h"
#include "core/store/LivingShop.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/ShopPictures.h"
#include "core/store/Startup.h"
#include "jobcards/LastOrder.h"
#include "jobcards/PictureFiles.h"
#include "jobcards/clsJobCardData.h"
#include "jobcards/frmClothColor.h"
#include "media/frmCam.h"
#include "media/frmHandNote.h"
#include "media/frmPreview.h"
#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmSelectFile.h"
#include "ui/modLang.h"
#include "ui_frmAddItem.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

using values::Val;

namespace {

Measurements readGrid(const ItemDetails& grid)
{
    Measurements all;
    for (qint32 i = 0; i < grid.Count(); ++i) {
        QString name, value;
        grid.ListItemText(name, value, i);
        all.names << name.remove(u'\r');
        all.values << value;
    }
    return all;
}

} // namespace

frmAddItem::frmAddItem()
    : ui(std::make_unique<Ui::frmAddItem>())
{
    ui->setupUi(this);
    onGotFocus(ui->cmbItems, [this] { openItems(); });
    onKeyPress(ui->cmbItems, [this](int& key) { typeItem(key); });
    on(ui->cmbItems, &forms::ComboBox::clicked, &frmAddItem::chooseItem);
    on(ui->ItemDetails1, &::ItemDetails::valueLeft, &frmAddItem::lookAtMeasurements);
    for (QLineEdit* box : {ui->txtQnt, ui->txtFees})
        onKeyPress(box, [box](int& key) { key = EnterAsTab(key) == 0 ? 0 : NumbersOnly(*box, key); });
    onKeyPress(ui->txtRemark, [](int& key) { key = EnterAsTab(key); });
    ui->txtClientRemark->setNextOnSecondEnter(ui->Command1, swTextBoxMultiLine::BlankLine::Stays);
    on(ui->picColor, &ColorBox::clicked, &frmAddItem::chooseColor);
    on(ui->Command3, &QPushButton::clicked, [this] { takePicture(*ui->pic1, *ui->picPath1, 1); });
    on(ui->Command4, &QPushButton::clicked, [this] { takePicture(*ui->pic2, *ui->picPath2, 2); });
    on(ui->Command7, &QPushButton::clicked, &frmAddItem::drawNote);
    on(ui->Command8, &QPushButton::clicked, &frmAddItem::selectSecondPicture);
    on(ui->Command6, &QPushButton::clicked, [this] { clearPicture(*ui->pic1, *ui->picPath1); });
    on(ui->Command5, &QPushButton::clicked, [this] { clearPicture(*ui->pic2, *ui->picPath2); });
    on(ui->pic1, &PictureBox::dblClicked, [this] { preview(*ui->picPath1); });
    on(ui->pic2, &PictureBox::dblClicked, [this] { preview(*ui->picPath2); });
    on(ui->Command2, &QPushButton::clicked, &frmAddItem::clear);
    on(ui->Command1, &QPushButton::clicked, &frmAddItem::accept);
    onGotFocus(ui->Command1, [this] { ui->lblHelp->setNotice(unusualMeasurements()); });
    onLostFocus(ui->Command1, [this] { ui->lblHelp->setNotice({}); });
}

frmAddItem::~frmAddItem() = default;

// Opening

bool frmAddItem::ItemDetails(clsJobCardData& rows, qint32 clientID)
{
    prepare(RecordMode::New, rows, clientID);
    ui->lblHelp->setText(u"Esc all garments in: to the money  ·  "_s +
                         ui->lblHelp->text().section(u"  ·  "_s, 0, -2));
    showModal();
    return LineCancelled;
}

bool frmAddItem::EditItemDetails(clsJobCardData& rows, qint32 clientID, qint32 rowIndex)
{
    prepare(RecordMode::Stored, rows, clientID);
    RowIndex = rowIndex;
    showRow();
    showModal();
    return LineCancelled;
}

void frmAddItem::prepare(RecordMode mode, clsJobCardData& rows, qint32 clientID)
{
    LineCancelled = true;
    LineMode = mode;
    JobRows = &rows;
    ClientID = clientID;
    load();
    ui->lblClint->setText(GetAccountTitle(clientID));
}

void frmAddItem::Form_Load()
{
    SetFormLanguage(*this);
    FillCombo(u"Name"_s, u"Items"_s, *ui->cmbItems, DE.rsITEMS);
}

void frmAddItem::Form_Activate()
{
    if (LineMode == RecordMode::Stored)
        ui->ItemDetails1->SetFocusToList();
}

void frmAddItem::showRow()
{
    LoadEditItems(JobRows->ItemDetails(RowIndex), JobRows->ItemDetailsValue(RowIndex));
    m_guard = MeasurementGuard::of(JobRows->ItemID(RowIndex), ClientID, JobRows->Sr(RowIndex));
    lookAtMeasurements();
    ui->txtFees->setText(values::CStr(JobRows->Fees(RowIndex)));
    ui->txtQnt->setText(QString::number(JobRows->Qty(RowIndex)));
    ui->txtRemark->setText(JobRows->Remarks(RowIndex));
    showPicture(*ui->pic1, *ui->picPath1, JobRows->img1(RowIndex));
    showPicture(*ui->pic2, *ui->picPath2, JobRows->img2(RowIndex));
    ui->picColor->setNumber(itemcolor::readNumber(JobRows->Color(RowIndex)));
    ui->cmbItems->setText(JobRows->ItemName(RowIndex));
    ui->txtClientRemark->setText(JobRows->ClientRemarks(RowIndex));
}

// Item and measurements

/// An entry is taken only where it is the box's text in whole: the item of an old line may have left the
/// catalogue.
void frmAddItem::openItems()
{
    if (ui->cmbItems->findText(ui->cmbItems->text(), Qt::MatchFixedString) >= 0)
        ComboSyncIndex(*ui->cmbItems);
    ComboDropDown(*ui->cmbItems);
}

void frmAddItem::typeItem(int& key)
{
    key = AutoSearchCombo(*ui->cmbItems, key);
    if (key != forms::key::Enter)
        return;
    key = 0;
    if (ui->cmbItems->text().isEmpty()) {
        unload();
        return;
    }
    ui->ItemDetails1->ClearList();
    chooseItem();
    if (ui->ItemDetails1->Count() > 0)
        ui->ItemDetails1->SetFocusToList();
    else
        ui->txtQnt->setFocus();
}

/// The fee always starts from the catalogue, also where the measurements come from an earlier order.
void frmAddItem::chooseItem()
{
    const qint32 itemID = GetItemID(ui->cmbItems->text());
    LoadLastConfig(itemID, ClientID);
    m_guard = MeasurementGuard::of(itemID, ClientID);
    lookAtMeasurements();
    ui->txtFees->setText(values::CStr(GetItemFees(itemID)));
}

void frmAddItem::LoadLastConfig(qint32 itemID, qint32 clientID)
{
    const std::optional<LastOrder> last = LastOrder::of(itemID, clientID);
    if (!last) {
        LoadEmptyItems(itemID);
        return;
    }
    ui->lblLast->setText(u"Previous JOB : "_s + values::Format(last->day, u"dd-MMM-yyyy"_s));
    if (last->clientRemark)
        ui->txtClientRemark->setText(*last->clientRemark);
    ui->ItemDetails1->ClearList();
    const Measurements& all = last->measurements;
    for (qsizetype i = 0; i < all.names.size(); ++i)
        addPair(all.names[i] + u'=' + all.values.value(i));
}

void frmAddItem::LoadEmptyItems(qint32 itemID)
{
    ui->ItemDetails1->ClearList();
    ui->ItemDetails1->setLanguage(QString());
    ui->lblLast->setText(u"No Previous record found!"_s);
    for (const QString& line : measurementTemplate(itemID))
        addPair(line);
    ui->txtClientRemark->clear();
}

void frmAddItem::LoadEditItems(const QString& names, const QString& values)
{
    const auto all = Measurements::split(names, values);
    for (qsizetype i = 0; i < all.names.size(); ++i)
        ui->ItemDetails1->AddFeild(all.names[i], all.values.value(i));
}

/// A name, "=" and a value; a value ends where it holds another "=".
void frmAddItem::addPair(const QString& line)
{
    const QStringList parts = line.split(u'=');
    ui->ItemDetails1->AddFeild(parts[0], parts.value(1));
}

void frmAddItem::lookAtMeasurements()
{
    const QStringList doubts = m_guard.doubts(readGrid(*ui->ItemDetails1));
    ui->ItemDetails1->setReasons(doubts);
    m_unusual = doubts.size() - doubts.count(QString());
}

QString frmAddItem::unusualMeasurements() const
{
    if (m_unusual == 0)
        return {};
    return m_unusual == 1 ? u"1 measurement looks unusual"_s
                          : u"%1 measurements look unusual"_s.arg(m_unusual);
}

// Keys

/// Ctrl+Enter leaves the measurements from any row.
void frmAddItem::Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
{
    if (key == forms::key::Enter && modifiers.testFlag(Qt::ControlModifier) &&
        ui->ItemDetails1->isAncestorOf(focusWidget())) {
        key = 0;
        ui->txtQnt->setFocus();
        return;
    }
    key = ArrowsAsTab(key);
}

// Colour and pictures

void frmAddItem::chooseColor()
{
    if (const std::optional<qint32> chosen = frmClothColor().choose(ui->picColor->number()))
        ui->picColor->setNumber(*chosen);
}

/// A camera that gave nothing leaves the place as it is.
void frmAddItem::takePicture(PictureBox& pic, QLabel& picPath, int number)
{
    requireLivingShop();
    const QString target = newPicture(number);
    bool cancelled = true;
    frmCam().TakeSnap(target, cancelled);
    if (!cancelled && QFileInfo::exists(target))
        showPicture(pic, picPath, target);
}

/// A picture that is there already is drawn on.
void frmAddItem::drawNote()
{
    requireLivingShop();
    const QString target = ui->picPath1->text().isEmpty() ? newPicture(1) : ui->picPath1->text();
    bool cancelled = true;
    frmHandNote().TakeSnap(target, cancelled);
    if (!cancelled)
        showPicture(*ui->pic1, *ui->picPath1, target);
}

/// A name for a picture that is to be made.
QString frmAddItem::newPicture(int number) const
{
    MakeImagesFolder();
    return picturefiles::newPath(ui->lblClint->text(), QDateTime(session.WorkingDate, QTime::currentTime()),
                                 number);
}

/// The picture goes to the second place; its file is named as the first's are.
void frmAddItem::selectSecondPicture()
{
    requireLivingShop();
    frmSelectFile picker;
    const QString source = picker.SelFile();
    if (source.isEmpty() || source == "Cancel"_L1)
        return;
    const QString target = newPicture(1);
    picturefiles::copy(source, target);
    showPicture(*ui->pic2, *ui->picPath2, target);
}

void frmAddItem::clearPicture(PictureBox& pic, QLabel& picPath)
{
    picturefiles::remove(picPath.text());
    pic.clear();
    picPath.clear();
    m_lostLinks.remove(&picPath);
}

/// The place of a picture that is not there says so; its link stays with the line, as the file may come back.
void frmAddItem::showPicture(PictureBox& pic, QLabel& picPath, const QString& link)
{
    const QString file = shownPicture(link);
    if (file.isEmpty()) {
        m_lostLinks.insert(&picPath, link);
        pic.showMissing(!link.isEmpty());
        return;
    }
    pic.load(file);
    picPath.setText(file);
}

QString frmAddItem::linkOf(const QLabel& picPath) const
{
    return picPath.text().isEmpty() ? m_lostLinks.value(&picPath) : picPath.text();
}

void frmAddItem::preview(const QLabel& picPath)
{
    if (!picPath.text().isEmpty())
        frmPreview().ShowImage(picPath.text());
}

void frmAddItem::clear()
{
    clearPicture(*ui->pic1, *ui->picPath1);
    clearPicture(*ui->pic2, *ui->picPath2);
    if (!ui->cmbItems->text().isEmpty())
        LoadEmptyItems(GetItemID(ui->cmbItems->text()));
}

// OK

/// A line that could not be written counts as cancelled: the card must not list a row that it does not hold.
void frmAddItem::accept()
{
    if (refuses(ui->cmbItems->text().isEmpty(), u"Please Select Item!"_s, *ui->cmbItems) ||
        refuses(Val(ui->txtFees->text()) == 0, u"Please Enter Fees!"_s, *ui->txtFees) ||
        refuses(Val(ui->txtQnt->text()) == 0, u"Please Enter Quantity!"_s, *ui->txtQnt))
        return;
    writeRow();
    LineCancelled = false;
    unload();
}

bool frmAddItem::refuses(bool refused, const QString& message, QWidget& field)
{
    if (refused) {
        ShowMsg(message);
        field.setFocus();
    }
    return refused;
}

/// Everything that can fail is worked out first, so that a line is written whole or not at all. The amount is
/// that of the quantity as typed; the row keeps whole pieces.
void frmAddItem::writeRow()
{
    const QString itemName = ui->cmbItems->text();
    const qint16 itemID = values::toInt16(GetItemID(itemName), u"Item number"_s);
    const qint16 qty = values::CInt(Val(ui->txtQnt->text()), u"Quantity"_s);
    const double fees = Val(ui->txtFees->text());
    const double amount = Val(ui->txtQnt->text()) * fees;
    Currency::fromDouble(amount, u"Amount (quantity x fees)"_s); // throws for a sum that no table could take
    const Measurements grid = readGrid(*ui->ItemDetails1);
    const QString details = grid.nameText();
    const QString detailsValue = grid.valueText();
    const QString remarks = ui->txtRemark->text();
    const QString img1 = linkOf(*ui->picPath1);
    const QString img2 = linkOf(*ui->picPath2);
    const QString color = QString::number(ui->picColor->number());
    const QString note = ui->txtClientRemark->Text();

    if (LineMode == RecordMode::New) {
        JobRows->AddNewRow(0, itemName, itemID, qty, fees, amount, remarks, details, detailsValue, 0, {}, {},
                           {}, {}, {}, 0, 0, 0, {}, img1, img2, color, 0, {}, note);
        return;
    }
    JobRows->SetItemName(RowIndex, itemName);
    JobRows->SetItemID(RowIndex, itemID);
    JobRows->SetQty(RowIndex, qty);
    JobRows->SetFees(RowIndex, fees);
    JobRows->SetAmount(RowIndex, amount);
    JobRows->SetRemarks(RowIndex, remarks);
    JobRows->SetItemDetails(RowIndex, details);
    JobRows->SetItemDetailsValue(RowIndex, detailsValue);
    JobRows->SetImg1(RowIndex, img1);
    JobRows->SetImg2(RowIndex, img2);
    JobRows->SetColor(RowIndex, color);
    JobRows->SetClientRemarks(RowIndex, note);
}
