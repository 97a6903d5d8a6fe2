#include "FullShop.h"
#include "OnScreen.h"
#include "platform/forms/Theme.h"
#include "registers/frmSearchClient.h"
#include "ui/swTextBox.h"

#include <QApplication>
#include <benchmark/benchmark.h>

// Finding a client among 8,000: each keystroke, the list painted, is meant to take less than 30 ms.

namespace {

/// Types the word in the box, again and again; the figure is that of the slowest keystroke's place, the
/// first, after which the most clients are listed, or of the last.
void typeLetters(benchmark::State& state, const char* box, const char* word)
{
    frmSearchClient screen;
    onScreen(
        screen, [&] { screen.showModal(); },
        [&] {
            auto* field = screen.findChild<swTextBox*>(QString::fromLatin1(box));
            const QString letters = QString::fromLatin1(word);
            qsizetype typed = letters.size();
            for (auto _ : state) {
                if (typed == letters.size()) {
                    state.PauseTiming();
                    field->setFocus();
                    field->clear();
                    paint(screen);
                    typed = 0;
                    state.ResumeTiming();
                }
                const QChar letter = letters[typed++];
                pressKey(letter.toUpper().unicode(), letter);
                paint(screen);
            }
        });
}

} // namespace

BENCHMARK_CAPTURE(typeLetters, anyName, "txtName", "a")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeLetters, name, "txtName", "ramesh")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeLetters, mobile, "txtMobile", "98290145")->Unit(benchmark::kMillisecond);

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const FullShop shop;
    forms::applyTheme(application, QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/fonts"));
    benchmark::RunSpecifiedBenchmarks();
}
