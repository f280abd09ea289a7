// A large button with an icon, a title and a line that says what it leads to.
#pragma once

#include <QPushButton>

namespace tessarel {

class GrandBouton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString description READ Description WRITE FixerDescription)
public:
    explicit GrandBouton(QWidget* parent = nullptr);

    [[nodiscard]] QString Description() const { return m_description; }
    void FixerDescription(const QString& description);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* evenement) override;

private:
    [[nodiscard]] QFont PoliceTitre() const;

    QString m_description;
};

} // namespace tessarel
