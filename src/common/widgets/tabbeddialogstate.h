#pragma once

#include <QString>

class QDialog;
class QTabWidget;

// A tabbed dialog's geometry and last page, kept in a group of the user
// settings. Pages are told apart by their object names.
namespace TabbedDialogState {

void restore(QDialog& dialog, QTabWidget& pages, const QString& group);
void save(const QDialog& dialog, const QTabWidget& pages, const QString& group);

} // namespace TabbedDialogState
