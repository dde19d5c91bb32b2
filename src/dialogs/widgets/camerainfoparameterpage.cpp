#include "dialogs/widgets/camerainfoparameterpage.h"

#include "dialogs/parametersetfile.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>

CameraInfoParameterPage::CameraInfoParameterPage(quint32 handle, QWidget* parent)
    : CameraInfoPage(handle, parent)
    , m_chooseFile([this](bool save) { return defaultFile(save); })
{
    setObjectName(QStringLiteral("parameterSetsPage"));
    m_sets = new QComboBox(content());
    m_sets->setObjectName(QStringLiteral("parameterSet"));
    for (quint32 index = 0; index < PV_PARAMSET_COUNT; ++index)
        m_sets->addItem(ParameterSets::setName(index), index);
    m_values = new QTableWidget(0, 2, content());
    m_values->setObjectName(QStringLiteral("parameterValues"));
    m_values->setHorizontalHeaderLabels({tr("Parameter"), tr("Value")});
    m_values->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_values->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_values->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_values->verticalHeader()->hide();
    m_values->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_startup = new QLabel(content());
    m_startup->setObjectName(QStringLiteral("startupSet"));
    const auto button = [this](const QString& text, const char* name) {
        auto* b = new QPushButton(text, content());
        b->setObjectName(QLatin1String(name));
        b->setAutoDefault(false);
        return b;
    };
    m_makeStartup = button(tr("Make start-up set"), "makeStartupSet");
    m_saveCurrent = button(tr("Save current settings into this set"), "saveCurrentSettings");
    m_reset = button(tr("Reset to factory"), "resetToFactory");
    m_export = button(tr("Export..."), "exportSet");
    m_import = button(tr("Import..."), "importSet");
    auto* grid = new QGridLayout(content());
    grid->addWidget(new QLabel(tr("Set:"), content()), 0, 0);
    grid->addWidget(m_sets, 0, 1);
    grid->addWidget(m_startup, 0, 2);
    grid->addWidget(m_values, 1, 0, 1, 3);
    grid->addWidget(m_makeStartup, 2, 0);
    grid->addWidget(m_saveCurrent, 2, 1);
    grid->addWidget(m_reset, 2, 2);
    grid->addWidget(m_export, 3, 0);
    grid->addWidget(m_import, 3, 1);
    connect(m_sets, qOverload<int>(&QComboBox::currentIndexChanged), this, &CameraInfoParameterPage::onSetChosen);
    connect(m_makeStartup, &QPushButton::clicked, this, &CameraInfoParameterPage::onMakeStartup);
    connect(m_saveCurrent, &QPushButton::clicked, this, &CameraInfoParameterPage::onSaveCurrent);
    connect(m_reset, &QPushButton::clicked, this, &CameraInfoParameterPage::onResetToFactory);
    connect(m_export, &QPushButton::clicked, this, &CameraInfoParameterPage::onExport);
    connect(m_import, &QPushButton::clicked, this, &CameraInfoParameterPage::onImport);
}

Result CameraInfoParameterPage::load()
{
    quint32 startup = 0;
    Result result = ParameterSets::startupSet(handle(), &startup);
    if (result.isSuccess()) {
        showStartup(startup);
        result = readChosen();
    }
    return loaded(result);
}

quint32 CameraInfoParameterPage::chosenSet() const
{
    return m_sets->currentData().toUInt();
}

Result CameraInfoParameterPage::readChosen()
{
    const Result result = ParameterSets::read(handle(), chosenSet(), &m_set);
    showSet();
    return result;
}

void CameraInfoParameterPage::showSet()
{
    m_values->setRowCount(m_set.values.size());
    for (int row = 0; row < m_set.values.size(); ++row) {
        m_values->setItem(row, 0, new QTableWidgetItem(m_set.values.at(row).first));
        auto* value = new QTableWidgetItem(QString::number(m_set.values.at(row).second));
        value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_values->setItem(row, 1, value);
    }
    const bool userSet = chosenSet() != PV_PARAMSET_FACTORY;
    m_saveCurrent->setVisible(userSet);
    m_import->setVisible(userSet);
}

void CameraInfoParameterPage::showStartup(quint32 index)
{
    m_startup->setText(tr("Start-up set: %1").arg(ParameterSets::setName(index)));
}

void CameraInfoParameterPage::onSetChosen()
{
    report(readChosen());
}

void CameraInfoParameterPage::onMakeStartup()
{
    if (report(ParameterSets::setStartupSet(handle(), chosenSet()), m_makeStartup))
        showStartup(chosenSet());
}

void CameraInfoParameterPage::onSaveCurrent()
{
    if (report(ParameterSets::saveCurrent(handle(), chosenSet()), m_saveCurrent))
        report(readChosen());
}

void CameraInfoParameterPage::onResetToFactory()
{
    const auto answer = QMessageBox::question(
        this, title(), tr("Reset the camera's current settings and its start-up set to the factory defaults?"));
    if (answer != QMessageBox::Yes || !report(ParameterSets::resetToFactory(handle()), m_reset))
        return;
    showStartup(PV_PARAMSET_FACTORY);
    report(readChosen());
}

void CameraInfoParameterPage::onExport()
{
    const QString path = m_chooseFile(true);
    if (!path.isEmpty())
        report(ParameterSetFile::save(path, m_set));
}

void CameraInfoParameterPage::onImport()
{
    const QString path = m_chooseFile(false);
    ParameterSet imported;
    if (path.isEmpty() || !report(ParameterSetFile::load(path, m_set, &imported)))
        return;
    if (report(ParameterSets::write(handle(), chosenSet(), imported), m_import))
        report(readChosen());
}

QString CameraInfoParameterPage::defaultFile(bool save)
{
    const QString filter = tr("Parameter sets (*.ini)");
    return save ? QFileDialog::getSaveFileName(this, tr("Export parameter set"), QString(), filter)
                : QFileDialog::getOpenFileName(this, tr("Import parameter set"), QString(), filter);
}
