#include "dialogs/widgets/camerainfolenspage.h"

#include "dialogs/liquidlens.h"

#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include <cmath>

CameraInfoLensPage::CameraInfoLensPage(quint32 handle, QWidget* parent)
    : CameraInfoPage(handle, parent)
{
    setObjectName(QStringLiteral("liquidLensPage"));
    m_slider = new QSlider(Qt::Horizontal, content());
    m_slider->setObjectName(QStringLiteral("lensSlider"));
    m_number = new QDoubleSpinBox(content());
    m_number->setObjectName(QStringLiteral("lensPower"));
    m_number->setDecimals(2);
    m_number->setSingleStep(0.05);
    m_number->setSuffix(tr(" dpt"));
    m_number->setKeyboardTracking(false);
    m_range = new QLabel(content());
    m_range->setObjectName(QStringLiteral("lensRange"));
    m_startup = new QLabel(content());
    m_startup->setObjectName(QStringLiteral("lensStartup"));
    m_store = new QPushButton(tr("Store as start-up value"), content());
    m_store->setObjectName(QStringLiteral("storeLensStartup"));
    m_store->setAutoDefault(false);
    auto* grid = new QGridLayout(content());
    grid->addWidget(new QLabel(tr("Focal power:"), content()), 0, 0);
    grid->addWidget(m_slider, 0, 1);
    grid->addWidget(m_number, 0, 2);
    grid->addWidget(m_range, 1, 1, 1, 2);
    grid->addWidget(m_startup, 2, 1, 1, 2);
    grid->addWidget(m_store, 3, 2);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(1, 1);
    connect(m_slider, &QSlider::valueChanged, this, &CameraInfoLensPage::onSliderMoved);
    connect(m_slider, &QSlider::sliderReleased, this, [this] { apply(m_slider->value()); });
    connect(m_number, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &CameraInfoLensPage::onNumberChanged);
    connect(m_store, &QPushButton::clicked, this, &CameraInfoLensPage::onStore);
}

Result CameraInfoLensPage::load()
{
    const Result result = LiquidLens::read(handle(), &m_lens);
    if (result.isSuccess())
        show(m_lens);
    return loaded(result);
}

void CameraInfoLensPage::show(const pv_LiquidLens& lens)
{
    const QSignalBlocker sliderBlocker(m_slider);
    const QSignalBlocker numberBlocker(m_number);
    m_slider->setRange(lens.minimum, lens.maximum);
    m_slider->setValue(lens.current);
    m_number->setRange(lens.minimum / 100.0, lens.maximum / 100.0);
    m_number->setValue(lens.current / 100.0);
    m_range->setText(tr("Range of the lens: %1 to %2")
                         .arg(LiquidLens::dioptres(lens.minimum), LiquidLens::dioptres(lens.maximum)));
    m_startup->setText(tr("Start-up value: %1").arg(LiquidLens::dioptres(lens.startup)));
}

void CameraInfoLensPage::onSliderMoved(int hundredths)
{
    {
        const QSignalBlocker blocker(m_number);
        m_number->setValue(hundredths / 100.0);
    }
    if (!m_slider->isSliderDown())
        apply(hundredths);
}

void CameraInfoLensPage::onNumberChanged(double dioptres)
{
    apply(qint32(std::lround(dioptres * 100)));
}

void CameraInfoLensPage::apply(qint32 hundredths)
{
    if (hundredths == m_lens.current)
        return;
    report(LiquidLens::set(handle(), m_lens, hundredths));
    // Show what the lens has now, whether the change worked or not.
    report(LiquidLens::read(handle(), &m_lens));
    show(m_lens);
}

void CameraInfoLensPage::onStore()
{
    if (report(LiquidLens::storeAsStartup(handle()), m_store))
        load();
}
