#include "gui/app/ProgramIcon.h"

QIcon ProgramIcon()
{
    // A static library's resources are left out unless somebody asks for them.
    Q_INIT_RESOURCE(ondara);
    return QIcon(QStringLiteral(":/ondara.svg"));
}
