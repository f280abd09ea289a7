// Lays out the controls of the wire's heat and ties them to the conduct of the machine.
#include "machine/ui/controles_chauffe.h"

#include "app/texts/textes_programme.h"
#include "machine/ui/conduite_manuelle.h"
#include "machine/ui/pose.h"
#include "ui/boites_qt.h"
#include "ui/theme.h"

#include <QGroupBox>
#include <QScrollBar>

namespace tessarel {

QBoxLayout* FaireControlesChauffe(QGroupBox* cadre, const char* nomOptions, ControlesChauffe& chauffe) {
    auto* options = new QHBoxLayout;
    FaireOptions(cadre, options, nomOptions, chauffe.options);
    chauffe.lblWarningChauffe = Nommer(new QLabel, "lblWarningChauffe");
    QFont gras = chauffe.lblWarningChauffe->font();
    gras.setBold(true);
    chauffe.lblWarningChauffe->setFont(gras);
    QPalette rouge = chauffe.lblWarningChauffe->palette();
    rouge.setColor(QPalette::WindowText, CouleurAlerte());
    chauffe.lblWarningChauffe->setPalette(rouge);
    options->addWidget(chauffe.lblWarningChauffe);
    options->addStretch(1);
    auto* valeur = new QHBoxLayout;
    chauffe.hscChauffeParam = Nommer(new QScrollBar(Qt::Horizontal), "hscChauffeParam");
    chauffe.lblChauffeParam = Nommer(new QLabel, "lblChauffeParam");
    chauffe.lblChauffeParam->setMinimumWidth(
        chauffe.lblChauffeParam->fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    valeur->addWidget(chauffe.hscChauffeParam, 1);
    valeur->addWidget(chauffe.lblChauffeParam);
    auto* pose = new QVBoxLayout;
    pose->addLayout(options);
    pose->addLayout(valeur);
    return pose;
}

void RelierChauffe(const ControlesChauffe& chauffe, ConduiteManuelle& conduite, QLabel& etat) {
    QObject::connect(chauffe.options[1], &QRadioButton::clicked, &conduite, [chauffe, &conduite] {
        if (!conduite.Chauffer(chauffe.hscChauffeParam->value())) chauffe.options[0]->setChecked(true);
    });
    QObject::connect(chauffe.options[0], &QRadioButton::pressed, &conduite, &ConduiteManuelle::Couper);
    QObject::connect(chauffe.hscChauffeParam, &QScrollBar::valueChanged, &conduite,
                     [chauffe, &conduite](int pourcent) {
                         MontrerChauffe(chauffe);
                         conduite.ChangerChauffe(pourcent);
                     });
    QObject::connect(&conduite, &ConduiteManuelle::ChauffeChangee, chauffe.hscChauffeParam,
                     [chauffe, &conduite](bool chaude) {
                         chauffe.options[chaude ? 1 : 0]->setChecked(true);
                         chauffe.lblWarningChauffe->setVisible(conduite.PeutEtreChaude());
                     });
    QObject::connect(&conduite, &ConduiteManuelle::CoupeeSansDemande, &etat,
                     [&etat](TexteProgramme mot) { etat.setText(TexteAffiche(Texte(mot))); });
    chauffe.lblWarningChauffe->hide();
}

void MontrerChauffe(const ControlesChauffe& chauffe) {
    chauffe.lblChauffeParam->setText(QStringLiteral("%1 %").arg(chauffe.hscChauffeParam->value()));
}

} // namespace tessarel
