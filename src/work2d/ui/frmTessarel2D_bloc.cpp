// The block, the placing of the paths in it, and what the project's canvas shows.
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "work2d/affichage.h"
#include "work2d/options_decoupe.h"
#include "work2d/ui/atelier_2d.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/libelles_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QToolButton>

namespace tessarel {

namespace {

// "L'opération demandée est impossible, une dimension est égale à zéro."
constexpr int DoublesDimensionNulle = 16;

} // namespace

ReglesPlacement frmTessarel2D::Regles() const {
    return ReglesAvecMarges(chkCentrer[0]->isChecked(), chkCentrer[1]->isChecked(),
                            chkCentrer[2]->isChecked(), Parametres);
}

void frmTessarel2D::ChangerBloc(std::size_t cote, double valeur) {
    if (valeur <= 0) {
        MontrerBloc();
        AfficherExclamation(TextesDoubles(DoublesDimensionNulle, 1), TextesDoubles(DoublesDimensionNulle, 2));
        return;
    }
    Bloc bloc = m_espace.bloc;
    (cote == 0 ? bloc.BlocX : bloc.BlocY) = static_cast<float>(valeur);
    m_atelier->Memoriser();
    m_espace.bloc = LimiterBlocSaisi(bloc, TableINI);
    Replacer();
}

void frmTessarel2D::AjusterBlocAuto() {
    m_atelier->Memoriser();
    const BlocPlace place = BlocAuto(m_espace.TableauSequences, Regles(), TableINI, m_espace.coeffTransf);
    m_espace.bloc = place.bloc;
    m_atelier->Annoncer(place.transformation);
    m_atelier->OublierSiInchange();
    MontrerTout();
    if (chkZoomProjet->isChecked()) {
        TraceTableTS2D(0, m_espace.bloc.BlocX, 0, m_espace.bloc.BlocY);
    }
    MarquerModifie();
}

void frmTessarel2D::ChangerRegle() {
    for (QCheckBox* regle : chkCentrer) {
        QPalette couleurs;
        if (regle->isChecked()) couleurs.setColor(QPalette::WindowText, QColor(255, 0, 0));
        regle->setPalette(couleurs);
    }
    m_atelier->Memoriser();
    Replacer();
}

void frmTessarel2D::Replacer() {
    m_atelier->Annoncer(
        AjusterAuBloc(m_espace.TableauSequences, m_espace.bloc, Regles(), TableINI, m_espace.coeffTransf));
    m_atelier->OublierSiInchange();
    MontrerTout();
    MarquerModifie();
}

void frmTessarel2D::MontrerBloc() {
    txtBloc[0]->FixerValeur(static_cast<double>(m_espace.bloc.BlocX));
    txtBloc[1]->FixerValeur(static_cast<double>(m_espace.bloc.BlocY));
    lblDimensionsBloc->setText(QString::fromStdString(TexteDimensionsBloc(m_espace.bloc)));
}

OptionsDessin frmTessarel2D::OptionsAffichage(const Canevas& canevas) const {
    OptionsDessin options;
    options.voirPoints = chkVoirPoints->isChecked();
    options.couleurProfils = chkCouleurProfils->isChecked();
    options.sombre = canevas.FondSombre();
    options.regles = false; // those of the canvas follow the zoom
    // The inner margins are what a fit to the block leaves free.
    if (chkCentrer[0]->isChecked()) {
        const ReglesPlacement regles = Regles();
        options.margeX = regles.margeX;
        options.margeY = regles.margeY;
    }
    return options;
}

void frmTessarel2D::TraceSequTS2D() {
    if (m_apercu) {
        TracerApercu();
        return;
    }
    const OptionsDessin options = OptionsAffichage(*pctSequTS2D);
    Dessin table;
    DessinerTable(table, TableINI, m_espace.bloc, options);
    pctSequTS2D->Montrer(Canevas::CoucheFond, std::move(table));
    Dessin choisies;
    DessinerSequences(choisies, m_espace.TableauSequences, options, PartieSequences::Selectionnees);
    pctSequTS2D->Montrer(Canevas::CoucheSelection, std::move(choisies));
    Dessin traces;
    DessinerSequences(traces, m_espace.TableauSequences, options, PartieSequences::Autres);
    pctSequTS2D->Montrer(Canevas::CoucheTrace, std::move(traces));
}

// The table whole, as a project opens.
void frmTessarel2D::CalculAffichageInitialTS2D() {
    pctSequTS2D->FixerCadreComplet(CadreTable(TableINI, false));
    pctSequTS2D->ZoomTout();
}

void frmTessarel2D::ZoomAutoToutVoir() {
    if (!chkZoomProjet->isChecked() || m_apercu) return;
    const ZoneVisible zone = CalculerZoneVisible(m_espace.TableauSequences, TableINI);
    const CadreDessin cadre = CadreToutVoir(zone, TableINI);
    TraceTableTS2D(cadre.XMin, cadre.XMax, cadre.YMin, cadre.YMax);
}

// The scale for a window of the table.
void frmTessarel2D::TraceTableTS2D(double xMin, double xMax, double yMin, double yMax) {
    pctSequTS2D->Cadrer({xMin, xMax, yMin, yMax});
}

} // namespace tessarel
