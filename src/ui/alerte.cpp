// The warning beside a loop.
#include "ui/alerte.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "ui/boites_qt.h"

#include <QMessageBox>
#include <QPushButton>

namespace tessarel {

namespace {

constexpr int RangeeChauffeNonCoupee = 40; // of TextesDoubles

} // namespace

QPointer<QMessageBox> OuvrirAlerte(QWidget* fenetre, const std::string& texte,
                                   std::function<void()> abandonner) {
    auto* alerte = new QMessageBox(fenetre);
    PreparerBoite(*alerte,
                  {texte, TextesDoubles(RangeeChauffeNonCoupee, 2), IconeBoite::Critique, BoutonsBoite::Ok});
    alerte->setObjectName(QStringLiteral("alerteInterface"));
    alerte->button(QMessageBox::Ok)->setText(TexteAffiche(Texte(TexteProgramme::BoutonAbandonner)));
    QObject::connect(alerte, &QMessageBox::finished, alerte,
                     [abandonner = std::move(abandonner)] { abandonner(); });
    alerte->open();
    return alerte;
}

FinAlerte::~FinAlerte() {
    delete m_alerte;
}

} // namespace tessarel
