#include "sample/Texts.h"

using namespace Qt::StringLiterals;

namespace sample {

namespace {

constexpr const char* lightRemarks[] = {"Cutaway collar",    "French cuffs",      "No pleats",
                                        "Keep extra margin", "Mandarin collar",   "Double stitch",
                                        "Contrast buttons",  "Side pockets deep", "Loose fit",
                                        "As per old sample", "Half sleeves",      "Slim fit"};
constexpr const char* heavyRemarks[] = {"Notch lapel, two buttons",
                                        "Antique gold buttons",
                                        "Satin lining",
                                        "Padded shoulders",
                                        "Velvet collar",
                                        "Hand-stitched lapel",
                                        "Canvas front",
                                        "Inner pen pocket"};
constexpr const char* ladiesRemarks[] = {
    "Lining in cotton", "Gota border on hem", "Piping at neck", "Deep back with dori", "Princess cut",
    "Cups to be fixed", "Lace as given",      "Elbow sleeves",  "Latkans at back",     "Padding, side hooks"};
constexpr const char* wishes[] = {
    "Likes a loose fit at the shoulders", "For a wedding, not a day late", "Same as last time",
    "Length as of the sample piece",      "Wants the leftover cloth back", "Sleeves a little longer",
    "Please call before the trial",       "Comfortable at the waist"};
constexpr const char* cardRemarks[] = {"Urgent",        "Son will collect",  "Cloth from our stock",
                                       "Home delivery", "Sample piece kept", "Function on delivery day"};
constexpr const char* cancelReasons[] = {"Client changed the plan", "Cloth fell short", "Function postponed",
                                         "Entered twice"};
constexpr const char* blame[] = {"Too tight, had to come back twice", "Late by a week",
                                 "Stitching came loose"};
constexpr const char* fair[] = {"All right, a little late", "Fitting could be better",
                                "Good, finishing average"};
constexpr const char* praise[] = {"Very good fitting", "Neat work, in time", "Perfect, will come again",
                                  "Everybody asked who made it"};

constexpr quint32 cloths[] = {0xF4F1EA, 0xE8E2D0, 0xD8B48C, 0xC9D6E8, 0x9FB8D8, 0x6A86B0, 0x2B3A67,
                              0x1C1F2B, 0x3C3C3C, 0x6E6E6E, 0xA8A8A8, 0x4A3A2C, 0x7A5230, 0xA0522D,
                              0x8C1C2F, 0xB03060, 0xD46A9A, 0xE8A0B8, 0x6A3FB0, 0x9E7BC9, 0x1F6F5C,
                              0x2E8B57, 0x7FA66B, 0xC8B560, 0xE0B040, 0xD98032, 0xC8502C, 0x2C6E8E};

template <typename Table>
QString text(const Table& table, Random& random)
{
    return QString::fromLatin1(random.pick(table));
}

} // namespace

QString remark(const Garment& garment, Random& random)
{
    switch (garment.craft) {
    case Craft::Heavy:
        return text(heavyRemarks, random);
    case Craft::Ladies:
        return text(ladiesRemarks, random);
    case Craft::Light:
        break;
    }
    return text(lightRemarks, random);
}

QString wish(Random& random) { return text(wishes, random); }

QString cardRemark(Random& random) { return text(cardRemarks, random); }

QString cancelReason(Random& random) { return text(cancelReasons, random); }

QString feedback(int score, Random& random)
{
    if (score <= 2)
        return text(blame, random);
    return score == 3 ? text(fair, random) : text(praise, random);
}

QString shelf(Random& random)
{
    const QChar rack(u'A' + random.below(5));
    return u"Rack %1%2"_s.arg(rack).arg(random.between(1, 12));
}

quint32 cloth(Random& random) { return random.pick(cloths); }

} // namespace sample
