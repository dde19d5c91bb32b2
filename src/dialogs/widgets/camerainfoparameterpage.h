#pragma once

#include "dialogs/parameterset.h"
#include "dialogs/widgets/camerainfopage.h"

#include <functional>

class QComboBox;
class QLabel;
class QPushButton;
class QTableWidget;

// "Parameter sets": the camera's factory and user sets, the set it starts
// with, saving the current settings into a user set, the reset to factory,
// and a set's export to a file and import from one.
class CameraInfoParameterPage final : public CameraInfoPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoParameterPage)

public:
    // Asks for a file to save into (true) or to open; empty when cancelled.
    using FileChooser = std::function<QString(bool save)>;

    CameraInfoParameterPage(quint32 handle, QWidget* parent);

    Result load() override;
    QString title() const override { return tr("Parameter sets"); }
    void setFileChooser(FileChooser chooser) { m_chooseFile = std::move(chooser); }

private slots:
    void onSetChosen();
    void onMakeStartup();
    void onSaveCurrent();
    void onResetToFactory();
    void onExport();
    void onImport();

private:
    quint32 chosenSet() const;
    Result readChosen();
    void showSet();
    void showStartup(quint32 index);
    QString defaultFile(bool save);

    ParameterSet m_set;
    QComboBox* m_sets = nullptr;
    QTableWidget* m_values = nullptr;
    QLabel* m_startup = nullptr;
    QPushButton* m_makeStartup = nullptr;
    QPushButton* m_saveCurrent = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_export = nullptr;
    QPushButton* m_import = nullptr;
    FileChooser m_chooseFile;
};
