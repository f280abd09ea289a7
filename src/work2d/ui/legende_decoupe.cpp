// The legend of the cut, drawn in the colours of the drawing.
#include "work2d/ui/legende_decoupe.h"

#include "platform/images/peinture_qt.h"
#include "ui/theme.h"
#include "work2d/couleurs_table.h"
#include "work2d/dessin_outils.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>

#include <span>
#include <vector>

namespace tessarel {

namespace {

constexpr int Largeur = 24; // pixels of a sample
constexpr int Hauteur = 14;
constexpr int Colonnes = 3;
// A little thicker than on the canvas, where a line is longer; what is thick there is thick here.
constexpr float EpaisseurNormale = 2;
constexpr float EpaisseurForte = 4;
constexpr float EpaisseurOmbre = 7;
constexpr double Tiret = 0.24; // of the width; the gaps share what three of them leave
constexpr std::size_t LignesSansRetour = 6;

// A line across the sample, from one part of its width to another.
struct Trait {
    Couleur couleur;
    float epaisseur = EpaisseurNormale;
    double de = 0;
    double a = 1;
};

std::vector<std::vector<Trait>> Traits() {
    // Rapid is a thickness, not a colour: half of an entry and half of an exit.
    return {{{CouleurEntree}},
            {{CouleurPremiereSequence}},
            {{CouleurSortie}},
            {{CouleurEntree, EpaisseurForte, 0, 0.5}, {CouleurSortie, EpaisseurForte, 0.5, 1}},
            {{CouleurDejaCoupe, EpaisseurForte}},
            {{CouleurOmbre, EpaisseurOmbre}, {CouleurSegmentCoupe, EpaisseurForte}},
            // The way back: the colour of what is cut, in dashes.
            {{CouleurDejaCoupe, EpaisseurNormale, 0, Tiret},
             {CouleurDejaCoupe, EpaisseurNormale, (1 - Tiret) / 2, (1 + Tiret) / 2},
             {CouleurDejaCoupe, EpaisseurNormale, 1 - Tiret, 1}}};
}

QPixmap Echantillon(std::span<const Trait> traits, bool sombre, qreal densite) {
    QPixmap image(QSize(Largeur, Hauteur) * densite);
    image.setDevicePixelRatio(densite);
    const PaletteTable& palette = PaletteDuFond(sombre);
    image.fill(sombre ? Qt::black : Qt::white);
    QPainter peintre(&image);
    peintre.fillRect(QRect(0, 0, Largeur, Hauteur), EnQColor(palette.fondBloc));
    for (const Trait& t : traits) {
        const QRectF barre(t.de * Largeur, (Hauteur - t.epaisseur) / 2, (t.a - t.de) * Largeur, t.epaisseur);
        peintre.fillRect(barre, EnQColor(CouleurSurFond(t.couleur, sombre)));
    }
    return image;
}

} // namespace

LegendeDecoupe::LegendeDecoupe(const char* page, bool avecRetour, QWidget* parent)
    : QWidget(parent), m_echantillons(LignesSansRetour + (avecRetour ? 1 : 0)) {
    const QString suite = QString::fromLatin1(page);
    setObjectName(QStringLiteral("frameLegende") + suite);
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(6);
    grille->setVerticalSpacing(4);
    for (std::size_t i = 0; i < m_echantillons.size(); ++i) {
        const int rang = static_cast<int>(i);
        m_echantillons[i] = new QLabel;
        m_echantillons[i]->setObjectName(QStringLiteral("imgLegende%1_%2").arg(suite).arg(i));
        m_echantillons[i]->setFixedSize(Largeur, Hauteur);
        auto* mot = new QLabel;
        mot->setObjectName(QStringLiteral("lblLegende%1_%2").arg(suite).arg(i));
        grille->addWidget(m_echantillons[i], rang / Colonnes, 2 * (rang % Colonnes));
        grille->addWidget(mot, rang / Colonnes, 2 * (rang % Colonnes) + 1);
    }
    for (int colonne = 0; colonne < Colonnes; ++colonne) grille->setColumnStretch(2 * colonne + 1, 1);
    Peindre();
}

void LegendeDecoupe::Peindre() {
    const auto traits = Traits();
    for (std::size_t i = 0; i < m_echantillons.size(); ++i)
        m_echantillons[i]->setPixmap(Echantillon(traits[i], PaletteSombre(palette()), devicePixelRatioF()));
}

void LegendeDecoupe::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange) Peindre();
}

} // namespace tessarel
