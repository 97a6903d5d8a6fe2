#include "planning/frmRatings.h"

#include "planning/Ratings.h"
#include "planning/Stars.h"
#include "ui/modLang.h"
#include "ui_frmRatings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RatingColumn = 4;
constexpr int heightOfStars = 22;

} // namespace

frmRatings::frmRatings()
    : ui(std::make_unique<Ui::frmRatings>())
{
    ui->setupUi(this);
    ui->lvSummary->setSeveral(true);
    ui->lvSummary->setColumns({{QString(), 7, Qt::AlignRight},
                               {u"Rank"_s, 10, Qt::AlignRight},
                               {u"Worker Name"_s, forms::ListView::rest},
                               {u"Scorer"_s, 13, Qt::AlignRight},
                               {u"Rating"_s, 24}});
}

frmRatings::~frmRatings() = default;

void frmRatings::Form_Load()
{
    SetFormLanguage(*this);
    GetRank();
}

void frmRatings::GetRank()
{
    ui->lvSummary->Clear();
    if (!RebuildRank())
        return;
    std::vector<QPixmap> ImageList1;
    for (int rating = 0; rating <= 5; ++rating)
        ImageList1.push_back(stars(rating, heightOfStars));
    std::vector<forms::ListView::Row> rows;
    for (const Rank& rank : readRanks()) {
        const QString position = QString::number(rows.size() + 1);
        forms::ListView::Row row{{position, position, rank.worker, rank.score, QString()}};
        if (const auto rating = size_t(rank.rating); rating < ImageList1.size())
            row.looks[RatingColumn] = {.toolTip = u"%1 of 5 stars"_s.arg(rank.rating),
                                       .picture = ImageList1[rating],
                                       .bold = false,
                                       .colour = {}};
        rows.push_back(std::move(row));
    }
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(0);
}

void frmRatings::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::Escape)
        return;
    key = 0;
    unload();
}
