#include "bench/desktop/CFormBench.h"

#include "core/platform/Files.h"

#include <cstdlib>
#include <iostream>

#include <QApplication>
#include <QLineEdit>
#include <QPixmap>
#include <QVBoxLayout>

namespace
{
constexpr const char* kSample = ONDARA_SOURCE_DIR "/samples/Sample02.od7";

[[noreturn]] void Stop(const std::string& reason)
{
    std::cerr << "can't measure: " << reason << '\n';
    std::exit(EXIT_FAILURE);
}

void ShowAndPaint(QWidget& window)
{
    window.show();
    QApplication::processEvents();
    window.grab();
}
} // namespace

CFormBench::CFormBench(const std::string& programs)
{
    const std::string& folder = m_folder.Path();
    const std::string command = "'" + JoinPath(programs, "ondara-cli") + "' --base-dir '" + folder +
                                "' --profile '" + JoinPath(folder, "profile.ini") + "' run '" + kSample +
                                "' 2>'" + JoinPath(folder, "said") + "' </dev/null";
    if (std::system(command.c_str()) != 0)
    {
        Stop(command);
    }
    m_app.Start(folder);
    m_app.OpenRecentFile(kSample);
    m_app.Project.ResultsFilePath = JoinPath(folder, "ondara7.bin");
    m_app.Project.ResultsLoaded = 1;
}

void CFormBench::Open(const CFormEntry& form)
{
    ShowAndPaint(*form.Make(m_context, nullptr));
    if (!m_recorder.Messages.empty())
    {
        Stop(form.Name + (": " + m_recorder.Messages.front()));
    }
}

void CFormBench::OpenPlain(int controls)
{
    QDialog dialog;
    auto* column = new QVBoxLayout(&dialog);
    for (int i = 0; i < controls; ++i)
    {
        column->addWidget(new QLineEdit(QStringLiteral("1.000"), &dialog));
    }
    ShowAndPaint(dialog);
}

int CFormBench::ControlCount(const CFormEntry& form)
{
    const auto dialog = form.Make(m_context, nullptr);
    return static_cast<int>(dialog->findChildren<QWidget*>().size());
}
