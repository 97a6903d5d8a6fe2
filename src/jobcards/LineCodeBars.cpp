#include "jobcards/LineCodeBars.h"

using namespace Qt::StringLiterals;

namespace paper {

void codeFoot(report::Report& paper, int width)
{
    constexpr int gap = report::mm(1.5);
    constexpr int height = report::mm(10);
    report::Section& foot = paper.addSection(u"SectionCode"_s, report::Band::PageFoot, gap + height);
    foot.addBarcode(u"barLine"_s, lineCode).place(0, gap, width, height);
}

} // namespace paper
