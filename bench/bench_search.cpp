#include "Bare.h"
#include "OnScreen.h"
#include "registers/frmSearchClient.h"
#include "ui/swTextBox.h"

#include <benchmark/benchmark.h>

// Finding a client among 8,000: each keystroke, the list painted, is meant to take less than 30 ms.

namespace {

/// Types the word into the box, letter by letter, again and again. The fewer letters, the more clients are
/// listed: one letter finds nearly all.
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
                    paint();
                    typed = 0;
                    state.ResumeTiming();
                }
                const QChar letter = letters[typed++];
                pressKey(*field, letter.toUpper().unicode(), letter);
                paint();
            }
        });
}

/// What one letter finds, by the bare engine.
void searchFloor(benchmark::State& state)
{
    for (auto _ : state)
        bare::run("SELECT Title, Address, City, Mobile FROM Accounts WHERE Type=0 AND Title LIKE '%a%'");
}

} // namespace

BENCHMARK(searchFloor)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeLetters, anyName, "txtName", "a")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeLetters, name, "txtName", "ramesh")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(typeLetters, mobile, "txtMobile", "98290145")->Unit(benchmark::kMillisecond);
