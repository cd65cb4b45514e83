// Writes a picture of the main window and of every form, with a project opened and results loaded, at two
// sizes of the font, and one of both together, ondara.png:
//
//     ondara_screenshots FOLDER PROJECT.od7 RESULTS.tv7
#include "core/app/COndaraApp.h"
#include "core/platform/Files.h"
#include "gui/app/CMainFrame.h"
#include "gui/app/Forms.h"
#include "gui/app/ProgramIcon.h"
#include "tests/screenshots/ProgramPicture.h"
#include "tests/support/CRecorder.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include <QApplication>
#include <QPixmap>
#include <QTabWidget>

namespace
{
constexpr std::array<int, 2> kFontSizes = {9, 13}; ///< points
/// Of them the first that the program has stands in the picture of the whole program.
constexpr std::array kForms = {"COffsetEditorDlg", "CHullGeometryDlg", "CShipParticularsDlg"};
constexpr const char* kProgramPicture = "ondara.png";

std::string Folder(const std::string& file)
{
    return std::filesystem::path(file).parent_path();
}

/// The program on a project, without a screen. What it says is told on standard error.
class CStage
{
public:
    CStage(const std::string& project, const std::string& results)
    {
        m_recorder.ProfileFolder = Folder(project);
        m_app.Start(Folder(project));
        m_recorder.Files = {results};
        m_recorder.Answer = true; // with their input, or the results would stay the ones of before
        m_frame.LoadResults();
        m_recorder.Messages.clear(); // the question
        m_app.OpenRecentFile(project);
        m_app.Project.WorkingDraft = kNotGiven; // as long as nobody has asked the engine for it
        m_frame.UpdateCommands();
        m_frame.resize(m_frame.fontMetrics().averageCharWidth() * 150, m_frame.fontMetrics().height() * 42);
    }
    CStage(const CStage&) = delete;
    CStage& operator=(const CStage&) = delete;

    /// A picture of the main window with a form in front of it; false if it can't be written.
    bool PictureTogether(const std::string& folder)
    {
        const auto* name = std::find_if(kForms.begin(), kForms.end(), FindForm);
        if (name == kForms.end())
        {
            return false;
        }
        const auto form = FindForm(*name)->Make(m_frame.FormContext(), nullptr);
        if (auto* pictures = form->findChild<QTabWidget*>("pictures"))
        {
            pictures->setCurrentIndex(1); // the whole hull
        }
        return Write(ProgramPicture(m_frame, *form), folder, kProgramPicture);
    }
    /// Pictures of everything; false if one can't be written.
    bool Picture(const std::string& folder, int fontSize)
    {
        TellMessages("CMainFrame");
        bool written = Save(m_frame, folder, "CMainFrame", fontSize);
        for (const CFormEntry& form : FormList())
        {
            const auto dialog = form.Make(m_frame.FormContext(), nullptr);
            written = Save(*dialog, folder, form.Name, fontSize) && written;
            TellMessages(form.Name);
        }
        return written;
    }

private:
    static bool Save(QWidget& window, const std::string& folder, const std::string& name, int fontSize)
    {
        window.show();
        QApplication::processEvents();
        const QPixmap picture = window.grab();
        window.hide();
        return Write(picture, folder, name + "-" + std::to_string(fontSize) + "pt.png");
    }

    static bool Write(const QPixmap& picture, const std::string& folder, const std::string& name)
    {
        const std::string path = JoinPath(folder, name);
        const bool written = picture.save(QString::fromStdString(path));
        if (!written)
        {
            std::cerr << "can't write " << path << '\n';
        }
        return written;
    }

    void TellMessages(const char* where)
    {
        for (const std::string& message : m_recorder.Messages)
        {
            std::cerr << where << ": " << message << '\n';
        }
        m_recorder.Messages.clear();
    }

    CRecorder m_recorder;
    COndaraApp m_app{m_recorder.Platform};
    CMainFrame m_frame{m_app};
};
} // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
    {
        std::cerr << "usage: ondara_screenshots FOLDER PROJECT.od7 RESULTS.tv7\n";
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setWindowIcon(ProgramIcon());
    bool written = true;
    for (const int size : kFontSizes)
    {
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), size));
        CStage stage(argv[2], argv[3]);
        written = stage.Picture(argv[1], size) && written;
        written = (size != kFontSizes.front() || stage.PictureTogether(argv[1])) && written;
    }
    return written ? EXIT_SUCCESS : EXIT_FAILURE;
}
