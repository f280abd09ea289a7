// The page of a cut that runs on the machine.
#include "work2d/ui/panneau_course.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"
#include "ui/nommer.h"
#include "ui/place_libelle.h"
#include "work2d/resume.h"
#include "work2d/ui/legende_decoupe.h"
#include "work2d/ui/signe_fil.h"
#include "work2d/ui/style_2d.h"

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cmath>

namespace tessarel {

namespace {

// Rows of the messages.
constexpr int MessagesArret = 172;             // its title: "Arrêt sur le segment n° "
constexpr int MessagesMiseEnTemperature = 189; // "Mise en température du fil"
constexpr int MessagesAvancee = 190;           // "Chauffe ", and its title "Découpe segment n°"
// One step of the slider is half a percent.
constexpr double PasParPourcent = 2;
constexpr int BarrePleine = 1000;
constexpr int HauteurBouton = 40; // pixels
constexpr int LignesResume = 4;

QPushButton* Bouton(const char* nom, bool gras = false) {
    auto* bouton = Nommer(new QPushButton, nom);
    bouton->setMinimumHeight(HauteurBouton);
    bouton->setIconSize({24, 24});
    QFont police = bouton->font();
    police.setBold(gras);
    bouton->setFont(police);
    return bouton;
}

QPushButton* BoutonStop(const char* nom) {
    QPushButton* bouton = Bouton(nom, true);
    bouton->setMinimumHeight(HauteurStop);
    bouton->setStyleSheet(QString::fromLatin1(StyleStop));
    return bouton;
}

QProgressBar* Barre(const char* nom) {
    auto* barre = Nommer(new QProgressBar, nom);
    barre->setRange(0, BarrePleine);
    return barre;
}

} // namespace

PanneauCourse::PanneauCourse(QWidget* parent) : QWidget(parent) {
    auto* page = new QVBoxLayout(this);
    page->setSpacing(8);
    page->addWidget(DisposerEtat());
    page->addWidget(DisposerChauffe());
    page->addWidget(DisposerReprise());
    page->addWidget(new LegendeDecoupe("Course", true));
    page->addStretch(1);
    cmdSTOP = BoutonStop("cmdSTOP");
    cmdStopRetourApresReprise = BoutonStop("cmdStopRetourApresReprise");
    for (QPushButton* stop : {cmdSTOP, cmdStopRetourApresReprise}) {
        page->addWidget(stop);
        // Not when it is let go: a button that is held, or left with the mouse, must stop all the same.
        connect(stop, &QPushButton::pressed, this, &PanneauCourse::StopDemande);
    }
    Finir();
}

QGroupBox* PanneauCourse::DisposerEtat() {
    auto* groupe = Nommer(new QGroupBox, "frameCourse");
    auto* pose = new QVBoxLayout(groupe);
    lblAvertissementDecoupe = Nommer(new QLabel, "lblAvertissementDecoupe");
    QFont police = lblAvertissementDecoupe->font();
    police.setBold(true);
    police.setPointSizeF(police.pointSizeF() * 1.25);
    lblAvertissementDecoupe->setFont(police);
    lblAvertissementDecoupe->setWordWrap(true);
    m_avertissement = new PlaceLibelle(lblAvertissementDecoupe);
    pose->addWidget(m_avertissement);
    progrbarChauffe = Barre("progrbarChauffe");
    progrbarDecoupe = Barre("progrbarDecoupe");
    pose->addWidget(progrbarChauffe);
    pose->addWidget(progrbarDecoupe);
    lblResumeCourse = Nommer(new QLabel, "lblResumeCourse");
    lblResumeCourse->setWordWrap(true);
    lblResumeCourse->setTextFormat(Qt::PlainText);
    // Its heading comes and goes: nothing below moves for it.
    lblResumeCourse->setMinimumHeight(LignesResume * lblResumeCourse->fontMetrics().lineSpacing());
    lblResumeCourse->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    pose->addWidget(lblResumeCourse);
    return groupe;
}

QGroupBox* PanneauCourse::DisposerChauffe() {
    optChauffePendantDecoupe = Nommer(new QGroupBox, "optChauffePendantDecoupe");
    auto* pose = new QHBoxLayout(optChauffePendantDecoupe);
    hscChauffePendantDecoupe = Nommer(new QScrollBar(Qt::Horizontal), "hscChauffePendantDecoupe");
    hscChauffePendantDecoupe->setMinimumHeight(22);
    hscChauffePendantDecoupe->setInvertedControls(false); // the right key and the wheel turned up: hotter
    hscChauffePendantDecoupe->setPageStep(static_cast<int>(PasParPourcent));
    lblChauffePendantDecoupe = Nommer(new QLabel, "lblChauffePendantDecoupe");
    lblChauffePendantDecoupe->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblChauffePendantDecoupe->setMinimumWidth(
        lblChauffePendantDecoupe->fontMetrics().horizontalAdvance(QStringLiteral("100.0 %")));
    pose->addWidget(hscChauffePendantDecoupe, 1);
    pose->addWidget(lblChauffePendantDecoupe);
    connect(hscChauffePendantDecoupe, &QScrollBar::sliderPressed, this, [this] { m_chauffeChangee = false; });
    connect(hscChauffePendantDecoupe, &QScrollBar::valueChanged, this, [this] {
        m_chauffeChangee = true;
        DemanderChauffe();
    });
    // Let go where it was, the heat goes out once more: that is how a user makes sure. A change has gone out
    // already.
    connect(hscChauffePendantDecoupe, &QScrollBar::sliderReleased, this, [this] {
        if (!m_chauffeChangee) DemanderChauffe();
    });
    return optChauffePendantDecoupe;
}

QGroupBox* PanneauCourse::DisposerReprise() {
    pctRepriseDecoupe = Nommer(new QGroupBox, "pctRepriseDecoupe");
    auto* pose = new QVBoxLayout(pctRepriseDecoupe);
    lblNumSegmentStop = Nommer(new QLabel, "lblNumSegmentStop");
    pose->addWidget(lblNumSegmentStop);
    lblFilArret = new SigneFil("lblFilArret", "TimerFilArret");
    lblChauffeArret = Nommer(new QLabel, "lblChauffeArret");
    lblChauffeArret->setWordWrap(true);
    // The buttons below keep their place when one takes over from the other.
    lblChauffeArret->setMinimumHeight(lblFilArret->minimumHeight());
    pose->addWidget(lblFilArret);
    pose->addWidget(lblChauffeArret);
    cmdRepriseDecoupe = Bouton("cmdRepriseDecoupe", true);
    pose->addWidget(cmdRepriseDecoupe);
    pose->addSpacing(12);
    constexpr std::array<const char*, 2> noms = {"optTrajetRetour_0", "optTrajetRetour_1"};
    for (std::size_t i = 0; i < noms.size(); ++i) {
        optTrajetRetour[i] = Nommer(new QRadioButton, noms[i]);
        pose->addWidget(optTrajetRetour[i]);
    }
    optTrajetRetour[0]->setChecked(true);
    cmdLancerRetourApresStop = Bouton("cmdLancerRetourApresStop");
    pose->addWidget(cmdLancerRetourApresStop);
    pose->addSpacing(12);
    cmdAnnulerReprise = Bouton("cmdAnnulerReprise");
    pose->addWidget(cmdAnnulerReprise);
    connect(cmdRepriseDecoupe, &QPushButton::clicked, this, &PanneauCourse::RepriseDemandee);
    connect(cmdLancerRetourApresStop, &QPushButton::clicked, this, [this] {
        emit RetourDemande(optTrajetRetour[1]->isChecked() ? TrajetRetour::ParLeBord : TrajetRetour::Direct);
    });
    connect(cmdAnnulerReprise, &QPushButton::clicked, this, &PanneauCourse::AbandonDemande);
    return pctRepriseDecoupe;
}

void PanneauCourse::MontrerChauffe(double pourcent) {
    lblChauffePendantDecoupe->setText(
        QString::fromStdString(PointVersSeparateur(FormaterNombre(pourcent, "##0.0")) + " %"));
}

void PanneauCourse::DemanderChauffe() {
    const double pourcent = hscChauffePendantDecoupe->value() / PasParPourcent;
    MontrerChauffe(pourcent);
    emit ChauffeVoulue(pourcent);
}

void PanneauCourse::MontrerResume(const std::string& resume) {
    lblResumeCourse->setText(TexteAffiche(resume));
}

void PanneauCourse::Commencer(const Depart& depart) {
    m_genre = depart.genre;
    MontrerResume(depart.resume);
    m_avancait = !progrbarDecoupe->isHidden();
    pctRepriseDecoupe->hide();
    optChauffePendantDecoupe->hide();
    progrbarChauffe->hide();
    progrbarDecoupe->hide();
    {
        const QSignalBlocker muet(hscChauffePendantDecoupe);
        hscChauffePendantDecoupe->setRange(
            0, static_cast<int>(std::lround(depart.chauffeMaxi * PasParPourcent)));
        hscChauffePendantDecoupe->setValue(static_cast<int>(std::lround(depart.chauffe * PasParPourcent)));
    }
    MontrerChauffe(depart.chauffe); // not what the slider makes of it
    m_avertissement->Ecrire({});
    PermettreStop(true);
}

void PanneauCourse::PermettreStop(bool permis) {
    const bool retour = m_genre == GenreDecoupe::Retour;
    cmdSTOP->setVisible(permis && !retour);
    cmdStopRetourApresReprise->setVisible(permis && retour);
    cmdSTOP->setEnabled(permis && !retour);
    cmdStopRetourApresReprise->setEnabled(permis && retour);
    if (permis) (retour ? cmdStopRetourApresReprise : cmdSTOP)->setFocus();
}

void PanneauCourse::MontrerPhase(PhaseDecoupe phase) {
    switch (phase) {
    case PhaseDecoupe::Origine:
        m_avertissement->Ecrire(TexteAffiche(TextesEtats(EtatOrigine)));
        break;
    case PhaseDecoupe::Chauffe:
        m_avertissement->Ecrire(TexteAffiche(TextesMessages(MessagesMiseEnTemperature)));
        progrbarChauffe->setValue(0);
        progrbarChauffe->setFormat({});
        progrbarChauffe->show();
        break;
    case PhaseDecoupe::Decoupe:
    case PhaseDecoupe::Retour:
        progrbarChauffe->hide();
        progrbarDecoupe->setValue(0);
        progrbarDecoupe->setFormat({});
        progrbarDecoupe->show();
        optChauffePendantDecoupe->show();
        break;
    case PhaseDecoupe::Repos:
    case PhaseDecoupe::Arretee:
        break;
    }
}

void PanneauCourse::MontrerAvancee(const AvanceeDecoupe& avancee) {
    if (avancee.phase == PhaseDecoupe::Chauffe) {
        m_avertissement->Ecrire(TexteAffiche(TextesMessages(MessagesAvancee) +
                                             std::to_string(avancee.secondesRestantes) + "/" +
                                             std::to_string(avancee.secondesChauffe)));
        progrbarChauffe->setValue(static_cast<int>(avancee.fraction * BarrePleine));
        progrbarChauffe->setFormat(TexteAffiche(
            TexteRempli(TexteProgramme::TempsRestant, {TexteDureeResume(avancee.secondesRestantes)})));
        return;
    }
    m_avertissement->Ecrire(TexteAffiche(TitresMessages(MessagesAvancee) +
                                         std::to_string(avancee.NumSalveCourante) + "/" +
                                         std::to_string(avancee.sommets)));
    progrbarDecoupe->setValue(static_cast<int>(avancee.PartFaite() * BarrePleine));
    progrbarDecoupe->setFormat(TexteAffiche(TexteTempsRestant(avancee)));
}

void PanneauCourse::MontrerImmobile() {
    PermettreStop(false);
    optChauffePendantDecoupe->hide();
    if (progrbarChauffe->isHidden()) return;
    progrbarChauffe->hide();
    m_avertissement->Ecrire({}); // it heats no more
}

void PanneauCourse::MontrerArret(const Arret& arret) {
    MontrerImmobile();
    m_avertissement->Ecrire(TexteAffiche(TextesEtats(EtatArrete)));
    lblNumSegmentStop->setText(TexteAffiche(TitresMessages(MessagesArret) + std::to_string(arret.numero)));
    const bool retour = arret.genre == GenreDecoupe::Retour;
    const auto dire = [retour](TexteProgramme duRetour, TexteProgramme deLaDecoupe) {
        return TexteAffiche(Texte(retour ? duRetour : deLaDecoupe));
    };
    pctRepriseDecoupe->setTitle(dire(TexteProgramme::RetourArrete, TexteProgramme::DecoupeArretee));
    cmdRepriseDecoupe->setText(dire(TexteProgramme::TerminerRetour, TexteProgramme::ReprendreDecoupe));
    cmdRepriseDecoupe->setToolTip(
        dire(TexteProgramme::TerminerRetourBulle, TexteProgramme::ReprendreDecoupeBulle));
    MontrerChauffeCoupee(arret.chauffeCoupee);
    MontrerResume(Texte(retour ? TexteProgramme::ReglagesRetour : TexteProgramme::ReglagesDecoupe) + "\r\n" +
                  arret.resume);
    pctRepriseDecoupe->show();
}

void PanneauCourse::MontrerChauffeCoupee(bool coupee) {
    lblFilArret->Montrer(coupee ? EtatFil::Froid : EtatFil::Incertain);
    lblChauffeArret->setText(TexteAffiche(Texte(TexteProgramme::ChauffeCoupeeALArret)));
    lblChauffeArret->setVisible(coupee);
}

void PanneauCourse::RevenirALArret(const Arret& arret) {
    MontrerArret(arret);
    if (m_avancait) progrbarDecoupe->show(); // nothing has moved it since
}

void PanneauCourse::Finir() {
    PermettreStop(false);
    pctRepriseDecoupe->hide();
    optChauffePendantDecoupe->hide();
    progrbarChauffe->hide();
    progrbarDecoupe->hide();
    lblFilArret->Montrer(EtatFil::Froid);
    m_avertissement->Ecrire({});
    lblNumSegmentStop->clear();
}

} // namespace tessarel
