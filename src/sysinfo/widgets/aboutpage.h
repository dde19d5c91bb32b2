#pragma once

#include "sysinfo/aboutinformation.h"

#include <QWidget>

class InfoTreeView;
class QLabel;
class QTextBrowser;

// "About": the program's name and version in large, its facts, and the
// licence notices of the libraries it uses.
class AboutPage final : public QWidget
{
    Q_OBJECT

public:
    explicit AboutPage(QWidget* parent = nullptr);

    void show(const AboutInformation& about);

private:
    QLabel* m_title = nullptr;
    InfoTreeView* m_facts = nullptr;
    QTextBrowser* m_licences = nullptr;
};
