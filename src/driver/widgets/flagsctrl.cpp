#include "driver/widgets/flagsctrl.h"

#include "driver/registryflags.h"
#include "driver/widgets/checkboxex.h"
#include "driver/widgets/settingsfilenotice.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

FlagsCtrl::FlagsCtrl(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("flagsCtrl"));
    setWindowTitle(tr("Driver flags"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new SettingsFileNotice(this));
    auto* group = new QGroupBox(tr("Flags"), this);
    auto* grid = new QGridLayout(group);
    const auto& flags = RegistryFlags::all();
    for (std::size_t i = 0; i < flags.size(); ++i) {
        const RegistryFlag& flag = flags[i];
        const QString valueName = QLatin1String(flag.valueName);
        auto* box = new CheckBoxEx(flag.label ? QLatin1String(flag.label) : valueName, QLatin1String(flag.service),
                                   QLatin1String(RegistryFlags::group), valueName, group);
        box->setObjectName(QStringLiteral("flag_") + valueName.trimmed());
        grid->addWidget(box, int(i / 2), int(i % 2));
    }
    layout->addWidget(group);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    layout->addWidget(buttons);
}
