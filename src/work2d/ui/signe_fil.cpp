// The sign of a wire that is hot, or may be.
#include "work2d/ui/signe_fil.h"

#include "app/texts/textes_programme.h"
#include "ui/boites_qt.h"
#include "ui/theme.h"

namespace tessarel {

namespace {

constexpr int HauteurSigne = 34; // pixels
constexpr double TailleMots = 1.2;
// Slow enough not to be a flicker, fast enough to be seen from the corner of the eye.
constexpr int PeriodeClignotement = 500; // ms

// The two faces of the sign, both readable on any ground.
QString StyleSigne(bool plein) {
    const QString fil = CouleurFil().name();
    return plein ? QStringLiteral("QLabel { background: %1; color: white; border: 2px solid %1; "
                                  "border-radius: 6px; }")
                       .arg(fil)
                 : QStringLiteral("QLabel { background: transparent; color: %1; border: 2px solid %2; "
                                  "border-radius: 6px; }")
                       .arg(CouleurAlerte().name(), fil);
}

} // namespace

SigneFil::SigneFil(const char* nom, const char* nomMinuterie, QWidget* parent) : QLabel(parent) {
    setObjectName(QString::fromLatin1(nom));
    setAlignment(Qt::AlignCenter);
    setMinimumHeight(HauteurSigne);
    QFont police = font();
    police.setBold(true);
    police.setPointSizeF(police.pointSizeF() * TailleMots);
    setFont(police);
    m_minuterie.setObjectName(QString::fromLatin1(nomMinuterie));
    m_minuterie.setInterval(PeriodeClignotement);
    connect(&m_minuterie, &QTimer::timeout, this, [this] {
        m_plein = !m_plein;
        Peindre();
        emit Battement();
    });
    hide();
}

void SigneFil::Montrer(EtatFil fil) {
    m_fil = fil;
    if (fil == EtatFil::Froid) {
        m_minuterie.stop();
    } else if (!m_minuterie.isActive()) {
        m_plein = true;
        m_minuterie.start();
    }
    setVisible(fil != EtatFil::Froid);
    Peindre();
}

void SigneFil::Peindre() {
    if (m_fil == EtatFil::Froid) return;
    setText(TexteAffiche(
        Texte(m_fil == EtatFil::Chaud ? TexteProgramme::SigneFilChaud : TexteProgramme::SigneFilIncertain)));
    setStyleSheet(StyleSigne(m_plein));
}

} // namespace tessarel
