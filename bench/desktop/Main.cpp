// How much processor time the desktop program takes from its start until its front page is painted, beside a
// bare window of the toolkit, and how long each form takes to open, beside a dialog of as many plain
// controls; and how long an edit in the offset editor takes until grid and plot are painted, beside one in a
// plain table. Goals: 150 ms for the front page, 30 ms for a form, 16 ms for an edit.
#include "bench/CRatioReporter.h"
#include "bench/Compare.h"
#include "bench/desktop/CChildRun.h"
#include "bench/desktop/CFormBench.h"
#include "bench/desktop/COffsetEditBench.h"
#include "bench/desktop/FrontPage.h"

#include <benchmark/benchmark.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

#include <QApplication>

namespace
{
constexpr const char* kFrontPage = "--to-front-page";
constexpr const char* kBareWindow = "--bare-window";
constexpr int kRunsOfForms = 5;
constexpr int kEdits = 51;

void CompareForms(CFormBench& bench)
{
    for (const CFormEntry& form : FormList())
    {
        const int controls = bench.ControlCount(form);
        Compare(
            std::string("Opening ") + form.Name, [&] { bench.Open(form); },
            [controls] { CFormBench::OpenPlain(controls); }, kRunsOfForms);
    }
}
} // namespace

int main(int argc, char** argv)
{
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (first == kFrontPage || first == kBareWindow)
    {
        return first == kFrontPage ? RunToFrontPage(argc, argv) : RunBareWindow(argc, argv);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return EXIT_FAILURE;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");

    const CChildRun child;
    CompareTimes(
        "Front page, processor time", [&] { return child.ProcessorTime(kFrontPage); },
        [&] { return child.ProcessorTime(kBareWindow); });
    CFormBench forms(std::filesystem::absolute(argv[0]).parent_path());
    CompareForms(forms);
    COffsetEditBench offsets;
    for (const bool inBodyPlan : {false, true})
    {
        offsets.ShowBodyPlan(inBodyPlan);
        Compare(
            inBodyPlan ? "Editing an offset, body plan" : "Editing an offset", [&] { offsets.Edit(); },
            [&] { offsets.EditPlain(); }, kEdits);
    }
    std::cout << "Goals: 150000 us of processor time for the front page, 30000 us for each form, 16000 us "
                 "for an edit\n";
    CRatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
