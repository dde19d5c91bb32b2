#pragma once

#include <QFileDialog>

#include <optional>

class QCheckBox;

// The file dialog that asks where to save a support file, with the choice to
// replace identifying data by pseudonyms.
class SupportFileSaveDialog final : public QFileDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SupportFileSaveDialog)

public:
    struct Answer
    {
        QString path;
        bool redact = false;
    };

    explicit SupportFileSaveDialog(QWidget* parent = nullptr);

    // nullopt when the user cancels or chooses no file.
    static std::optional<Answer> ask(QWidget* parent);

private:
    QCheckBox* m_redact = nullptr;
};
