#include "processing-progress-dialog.h"

#include <QFont>
#include <QIcon>
#include <QString>

#include "cloud-service.h"
#include "install-layout.h"
#include "qt-ustring.h"
#include "strtable.h"

namespace {

constexpr int kDialogWidth = 400;
constexpr char kStyleSheet[] =
    " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    const QFont font(QStringLiteral("Arial"), -1, -1, false);
    const QString icon_path =
        ToQString(Service::GetRootDroviaResourceInstallPath()) + "/" + layout::kDialogIcon;

    setWindowTitle(StrTable::LoadStr(StrTable::kAppName));
    setWindowIcon(QIcon(icon_path));
    // Only a title bar with its system menu: no minimise, maximise or close
    // button, since the upgrade cannot be interrupted halfway.
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    // Setting the value starts the toolkit's show timer, so a slow upgrade
    // becomes visible even before the Launcher shows the dialog itself.
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kEnvironmentPreparing));
    setFont(font);
    setFixedWidth(kDialogWidth);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(QLatin1String(kStyleSheet));
}
