#include "client-window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

#include "install-layout.h"

namespace {

const int kWindowWidth = 320;

}  // namespace

ClientWindow::ClientWindow(const QString& version_file, QWidget* parent) : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Drovia"));
    setFixedWidth(kWindowWidth);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(versionText(version_file), this));
    layout->addWidget(new QLabel(QStringLiteral("pid %1").arg(QCoreApplication::applicationPid()), this));
}

QString ClientWindow::versionText(const QString& version_file)
{
    QSettings info(version_file, QSettings::IniFormat);
    info.beginGroup(QLatin1String(layout::kVersionGroup));
    const QString unknown = QStringLiteral("?");
    return QStringLiteral("Drovia client %1.%2, build %3")
        .arg(info.value(QStringLiteral("major_version"), unknown).toString(),
             info.value(QStringLiteral("minor_version"), unknown).toString(),
             info.value(QLatin1String(layout::kBuildKey), unknown).toString());
}
