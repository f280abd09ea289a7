// The cut tab of the 2D window, option by option, up to the G-code file and the DXF export.
#include "fenetres/poste_2d.h"
#include "platform/gabar/gabar.h"
#include "ui/canevas.h"
#include "work2d/export_gcode.h"
#include "work2d/options_decoupe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include <filesystem>

using namespace tessarel;
using essais::Poste2D;
using essais::RectangleTexte;

class EssaiDecoupe2D : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_poste.reset(); }

    void SansTraceLaDecoupeEstRefusee();
    void OuvrirLaDecoupeMontreLeTrajetEtLeResume();
    void LEntreeChoisieSeVoitAussitot();
    void LaSortieChoisieSeVoitAussitot();
    void ApprocheEtRetourRapides();
    void LeDecalageChoisiSeVoitAussitot();
    void LesOptionsRestentApresFermeture();
    void ZoomDecoupeCadreLeTrajet();
    void LeDepassementNeSeDitQuUneFois();
    void UnTrajetTropLongEstDit();

    void LaMatiereChoisieEstBrideeALaMachine();
    void LaMatiereDonneVitesseEtSaigneeEnModeExpert();

    void SansInterfaceLeLancementLeDit();
    void LeBoutonDitDecouperOuExporter();
    void LExportGcodeEcritLeFichierEtLeResume();
    void RenoncerALExportNEcritRien();
    void LExportGcodeRefuseUneAutreExtension();
    void UnGcodeImpossibleAEcrireEstDit();
    void LeGcodeNommeLeProjetEnregistre();

    void LExportDxfSansTraceEstRefuse();
    void LExportDxfEcritToutLeTrajet();
    void LExportDxfRefuseUneAutreExtension();
    void LExportDxfNeRemplacePasLeDessinOuvert();

    void EchapFermeLaDecoupe();
    void OuvrirUnFichierFermeLaDecoupe();
    void LesRaccourcisMenentAuGcode();

private:
    // The rectangle in the middle of the default block: X 340 to 440, Y 170 to 220.
    void Preparer();
    void OuvrirDecoupe() { m_poste->Cliquer<QPushButton>("cmdDecouper"); }
    [[nodiscard]] const Decoupe2D& Decoupe() const { return m_poste->fenetre->DecoupeMontree(); }
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] Boite DerniereBoite() const { return m_poste->DerniereBoite(); }
    [[nodiscard]] std::size_t NombreBoites() const { return m_poste->NombreBoites(); }
    [[nodiscard]] static std::vector<QPointF> Points(const Sequence& sequence) {
        std::vector<QPointF> points;
        for (const PointProfil& p : sequence.Points) points.emplace_back(p.X, p.Y);
        return points;
    }

    std::unique_ptr<Poste2D> m_poste;
};

void EssaiDecoupe2D::init() {
    m_poste = std::make_unique<Poste2D>();
    m_poste->OuvrirFenetre();
}

void EssaiDecoupe2D::Preparer() {
    m_poste->Deposer({m_poste->Fichier("rectangle.txt", RectangleTexte)});
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    m_poste->Cliquer<QCheckBox>("chkCentrer_2");
    QCOMPARE(Espace().TableauSequences.at(0).XMin, 340.0F);
    QCOMPARE(Espace().TableauSequences.at(0).YMin, 170.0F);
}

void EssaiDecoupe2D::SansTraceLaDecoupeEstRefusee() {
    OuvrirDecoupe();
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte,
             std::string("Pas de tracé chargé.\r\nImpossible d'accéder aux paramètres de découpe"));
    QCOMPARE(DerniereBoite().titre, std::string("Opération impossible"));
    QVERIFY(!m_poste->fenetre->DecoupeOuverte());
}

void EssaiDecoupe2D::OuvrirLaDecoupeMontreLeTrajetEtLeResume() {
    Preparer();
    OuvrirDecoupe();
    QVERIFY(m_poste->fenetre->DecoupeOuverte());
    QCOMPARE(NombreBoites(), std::size_t{0});
    // Entry along the first point's height, the five points, and back: shared points once.
    const std::vector<QPointF> attendu = {{0, 0},     {0, 170},   {340, 170}, {440, 170}, {440, 220},
                                          {340, 220}, {340, 170}, {0, 170},   {0, 0}};
    QCOMPARE(Points(Decoupe().SequenceDecoupe), attendu);
    const QString resume = m_poste->Trouver<QLabel>("lblInformationDecoupe").text();
    QVERIFY2(resume.startsWith(QStringLiteral("Vitesse : 4.0mm/s - ")), qPrintable(resume));
    QVERIFY(resume.contains(QStringLiteral("Chauffe : 65.0%")));
    QVERIFY(!m_poste->Trouver<Canevas>("pctDecoupe").Montre(Canevas::CoucheTrace).Liste().traits.empty());
    QVERIFY(m_poste->Trouver<Canevas>("pctDecoupe").isVisible());
}

void EssaiDecoupe2D::LEntreeChoisieSeVoitAussitot() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QToolButton>("optEntrerBloc_1");
    // Safe height: block 390 + margin 15 = 405.
    const std::vector<QPointF> dessus = {{0, 0}, {0, 405}, {340, 405}, {340, 170}};
    QCOMPARE(Points(Decoupe().TrajetEntree), dessus);
    QCOMPARE(Espace().TypeEntree, 1);
    m_poste->Cliquer<QToolButton>("optEntrerBloc_2");
    // Beyond the block: 770 + 5 + 15 = 790.
    const std::vector<QPointF> oppose = {{0, 0}, {0, 405}, {790, 405}, {790, 170}, {340, 170}};
    QCOMPARE(Points(Decoupe().TrajetEntree), oppose);
    QVERIFY(!m_poste->Trouver<QToolButton>("optEntrerBloc_1").isChecked());
}

void EssaiDecoupe2D::LaSortieChoisieSeVoitAussitot() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QToolButton>("optSortirBloc_1");
    const std::vector<QPointF> dessus = {{340, 170}, {340, 405}, {0, 405}, {0, 0}};
    QCOMPARE(Points(Decoupe().TrajetSortie), dessus);
    m_poste->Cliquer<QToolButton>("optSortirBloc_2");
    const std::vector<QPointF> oppose = {{340, 170}, {790, 170}, {790, 405}, {0, 405}, {0, 0}};
    QCOMPARE(Points(Decoupe().TrajetSortie), oppose);
    QCOMPARE(Espace().TypeSortie, 2);
}

void EssaiDecoupe2D::ApprocheEtRetourRapides() {
    Preparer();
    OuvrirDecoupe();
    QVERIFY(!Decoupe().TrajetEntree.Points[0].Rapide);
    const QString lent = m_poste->Trouver<QLabel>("lblInformationDecoupe").text();
    m_poste->Cliquer<QToolButton>("optApproche_1");
    QVERIFY(Decoupe().TrajetEntree.Points[0].Rapide);
    QVERIFY(m_poste->Trouver<QLabel>("lblInformationDecoupe").text() != lent);
    const std::size_t fin = Decoupe().TrajetSortie.Points.size() - 2;
    QVERIFY(!Decoupe().TrajetSortie.Points[fin].Rapide);
    m_poste->Cliquer<QToolButton>("optRetour_1");
    QVERIFY(Decoupe().TrajetSortie.Points[fin].Rapide);
    m_poste->Cliquer<QToolButton>("optApproche_0");
    QVERIFY(!Decoupe().TrajetEntree.Points[0].Rapide);
}

void EssaiDecoupe2D::LeDecalageChoisiSeVoitAussitot() {
    Preparer();
    OuvrirDecoupe();
    // Counterclockwise: the right is outside; the machine's kerf is 1 mm, half of it goes each way.
    m_poste->Cliquer<QToolButton>("optDecalage_2");
    QCOMPARE(Decoupe().SequenceDecalee.XMin, 339.5F);
    QCOMPARE(Decoupe().SequenceDecalee.XMax, 440.5F);
    QVERIFY(m_poste->Trouver<QLabel>("lblInformationDecoupe")
                .text()
                .contains(QStringLiteral("Décalage : 0.5mm")));
    m_poste->Cliquer<QToolButton>("optDecalage_1");
    QCOMPARE(Decoupe().SequenceDecalee.XMax, 439.5F);
    m_poste->Cliquer<QToolButton>("optDecalage_0");
    QCOMPARE(Decoupe().SequenceDecalee.XMax, 440.0F);
}

void EssaiDecoupe2D::LesOptionsRestentApresFermeture() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QToolButton>("optEntrerBloc_2");
    m_poste->Cliquer<QToolButton>("optDecalage_1");
    m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
    QVERIFY(!m_poste->fenetre->DecoupeOuverte());
    QVERIFY(Decoupe().SequenceDecoupe.Points.empty());
    QVERIFY(m_poste->Trouver<Canevas>("pctSequTS2D").isVisible());
    OuvrirDecoupe();
    QVERIFY(m_poste->Trouver<QToolButton>("optEntrerBloc_2").isChecked());
    QVERIFY(m_poste->Trouver<QToolButton>("optDecalage_1").isChecked());
    QCOMPARE(Decoupe().SequenceDecalee.XMax, 439.5F);
}

void EssaiDecoupe2D::ZoomDecoupeCadreLeTrajet() {
    Preparer();
    OuvrirDecoupe();
    const auto& canevas = m_poste->Trouver<Canevas>("pctDecoupe");
    const double table = canevas.Vue().echelle;
    m_poste->Cliquer<QCheckBox>("chkZoomDecoupe");
    const double trajet = canevas.Vue().echelle;
    QVERIFY(trajet > table);
    // The path grows over the block: the view follows.
    m_poste->Cliquer<QToolButton>("optEntrerBloc_2");
    QVERIFY(canevas.Vue().echelle < trajet);
    m_poste->Cliquer<QCheckBox>("chkZoomDecoupe");
    QCOMPARE(canevas.Vue().echelle, table);
}

void EssaiDecoupe2D::LeDepassementNeSeDitQuUneFois() {
    // As drawn, the rectangle starts at X = 0, left of the useful zone.
    m_poste->Deposer({m_poste->Fichier("rectangle.txt", RectangleTexte)});
    OuvrirDecoupe();
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Dépassement des courses"));
    QCOMPARE(DerniereBoite().texte,
             std::string("La zone utile de la machine est dépassée, le projet est tronqué automatiquement."));
    QVERIFY(Decoupe().DepassementDetecte);
    m_poste->Cliquer<QToolButton>("optDecalage_2");
    m_poste->Cliquer<QToolButton>("optEntrerBloc_1");
    QVERIFY(Decoupe().DepassementDetecte);
    QCOMPARE(NombreBoites(), std::size_t{1});
}

void EssaiDecoupe2D::UnTrajetTropLongEstDit() {
    std::string texte = "Trace\r\n";
    for (int i = 0; i < 40000; ++i) {
        // A zigzag: no point can be thinned away.
        texte += std::to_string(20 + i * 0.02) + ":" + std::to_string(20 + i % 2 * 100) + "\r\n";
    }
    m_poste->Deposer({m_poste->Fichier("long.txt", texte)});
    OuvrirDecoupe();
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Opération impossible"));
    QVERIFY2(DerniereBoite().texte.find("32767") != std::string::npos, DerniereBoite().texte.c_str());
    QVERIFY(Decoupe().SequenceDecoupe.Points.empty());
    QVERIFY(!Espace().TableauSequences.empty());
}

void EssaiDecoupe2D::LaMatiereChoisieEstBrideeALaMachine() {
    EcrireMatiere("Trop chaude", 95, 5, 1, 2, "(Defaut)");
    QVERIFY(ChargerBaseMatieres());
    m_poste->OuvrirFenetre();
    Preparer();
    OuvrirDecoupe();
    auto& liste = m_poste->Trouver<QComboBox>("comboMatieres");
    QCOMPARE(liste.count(), 2);
    QCOMPARE(liste.currentText(), QStringLiteral("Par defaut"));
    liste.setFocus();
    QTest::keyClick(&liste, Qt::Key_Down);
    QCOMPARE(liste.currentText(), QStringLiteral("Trop chaude"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Valeur incorrecte"));
    // The machine's highest heat is 80.
    QVERIFY(
        m_poste->Trouver<QLabel>("lblInformationDecoupe").text().contains(QStringLiteral("Chauffe : 80.0%")));
    QCOMPARE(LireIni("Parametres", "MatiereUtilisee", ""), std::string("Trop chaude"));
    QCOMPARE(MatiereCourante.Nom, std::string("Trop chaude"));
}

void EssaiDecoupe2D::LaMatiereDonneVitesseEtSaigneeEnModeExpert() {
    Parametres.ModeNormalExpert = "Expert";
    EcrireMatiere("Dense", 60, 3, 1.4F, 2, "(Defaut)");
    QVERIFY(ChargerBaseMatieres());
    ChoisirMatiere(*TrouverMatiere("Dense"));
    m_poste->OuvrirFenetre();
    Preparer();
    OuvrirDecoupe();
    QCOMPARE(m_poste->Trouver<QComboBox>("comboMatieres").currentText(), QStringLiteral("Dense"));
    m_poste->Cliquer<QToolButton>("optDecalage_2");
    QCOMPARE(Decoupe().SequenceDecalee.XMin, 339.3F);
    QCOMPARE(Decoupe().SequenceDecoupe.Points[3].Vitesse, 3.0F);
}

void EssaiDecoupe2D::SansInterfaceLeLancementLeDit() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QCOMPARE(DerniereBoite().titre, std::string("Désactivation des mouvements"));
    QVERIFY(m_poste->demandes.empty());
}

void EssaiDecoupe2D::LeBoutonDitDecouperOuExporter() {
    Preparer();
    OuvrirDecoupe();
    QCOMPARE(m_poste->Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").text(), QStringLiteral("Découper"));
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    QCOMPARE(m_poste->Trouver<QPushButton>("cmdLancerLaDecoupeTS2D").text(), QStringLiteral("Exporter"));
}

void EssaiDecoupe2D::LExportGcodeEcritLeFichierEtLeResume() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QToolButton>("optApproche_1");
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    const std::string chemin = m_poste->dossier.Fichier("rectangle.gcode");
    m_poste->reponsesFichier.push_back(chemin);
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    const DemandeFichier& demande = m_poste->demandes.at(0);
    QCOMPARE(demande.titre, std::string("Enregistrer le fichier Gcode sous..."));
    QCOMPARE(demande.filtre, std::string("Fichier Gcode(*.gcode)|*.gcode|Tous les fichiers (*.*)|*.*"));
    QCOMPARE(demande.indiceFiltre, 1);
    QVERIFY(demande.enregistrer);
    OptionsDecoupe2D options =
        OptionsDepuisEspace(Espace(), CoteDecalage2D::Aucun, DecoupeCourante, Parametres);
    QVERIFY(options.approcheRapide);
    const ExportGcode2D attendu = ConstruireGcode2D(Decoupe(), options, TableINI, "");
    QVERIFY(LireFichierEntier(chemin) == attendu.contenu);
    QVERIFY(attendu.contenu.starts_with("(Fichier Gcode de decoupe)\r\n"));
    QVERIFY(attendu.contenu.ends_with("M5\r\n(Fin du programme)\r\nM2\r\n"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte,
             "Fichier Gcode (.gcode) exporté sous : " + chemin + "\r\n" + attendu.resume);
}

void EssaiDecoupe2D::RenoncerALExportNEcritRien() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(m_poste->demandes.size(), std::size_t{1});
    QCOMPARE(NombreBoites(), std::size_t{0});
}

void EssaiDecoupe2D::LExportGcodeRefuseUneAutreExtension() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("rectangle.nc"));
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte,
             std::string("L'extension de fichier n'est pas correcte, le Gcode se sauvegarde en .gcode"));
    QCOMPARE(DerniereBoite().titre, std::string("Opération impossible"));
    QVERIFY(!FichierExiste(m_poste->dossier.Fichier("rectangle.nc")));
}

void EssaiDecoupe2D::UnGcodeImpossibleAEcrireEstDit() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("absent/rectangle.gcode"));
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Procédure de l'erreur :cmdLancerLaDecoupeTS2D"));
    QVERIFY(DerniereBoite().texte.find("rectangle.gcode") != std::string::npos);
}

void EssaiDecoupe2D::LeGcodeNommeLeProjetEnregistre() {
    Preparer();
    const std::string projet = m_poste->dossier.Fichier("projet.tsr");
    const std::string chemin = m_poste->dossier.Fichier("projet.gcode");
    m_poste->reponsesFichier = {projet, chemin};
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    OuvrirDecoupe();
    m_poste->Cliquer<QCheckBox>("chkExportGcode2D");
    m_poste->Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
    QVERIFY(LireFichierEntier(chemin).find("(Fichier Tessarel du projet : " + projet + ")\r\n") !=
            std::string::npos);
}

void EssaiDecoupe2D::LExportDxfSansTraceEstRefuse() {
    m_poste->Cliquer<QToolButton>("cmdExporterDXF");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte, std::string("Pas de tracé dans le bloc."));
    QCOMPARE(DerniereBoite().titre, std::string("Opération impossible"));
    QVERIFY(m_poste->demandes.empty());
}

void EssaiDecoupe2D::LExportDxfEcritToutLeTrajet() {
    Preparer();
    OuvrirDecoupe();
    const Sequence attendu = Decoupe().SequenceDecoupe;
    const std::string chemin = m_poste->dossier.Fichier("trajet.dxf");
    m_poste->reponsesFichier.push_back(chemin);
    m_poste->Cliquer<QToolButton>("cmdExporterDXF");
    QCOMPARE(m_poste->demandes.at(0).titre, std::string("Exporter le trajet complet en DXF..."));
    QCOMPARE(m_poste->demandes.at(0).filtre,
             std::string("Format d'échange DAO (*.dxf)|*.dxf|Tous les fichiers (*.*)|*.*"));
    QCOMPARE(NombreBoites(), std::size_t{0});
    std::vector<PointSimple> relus;
    Etendue etendue;
    LireFichier(relus, chemin, etendue, "dxf");
    std::vector<QPointF> points;
    for (const PointSimple& p : relus) points.emplace_back(p.X, p.Y);
    QCOMPARE(points, Points(attendu));
}

void EssaiDecoupe2D::LExportDxfRefuseUneAutreExtension() {
    Preparer();
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("trajet.svg"));
    m_poste->Cliquer<QToolButton>("cmdExporterDXF");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte,
             std::string("L'extension de fichier n'est pas correcte, l'exportation se fait en .dxf"));
    QVERIFY(!FichierExiste(m_poste->dossier.Fichier("trajet.svg")));
}

void EssaiDecoupe2D::LExportDxfNeRemplacePasLeDessinOuvert() {
    Preparer();
    const std::string source = m_poste->dossier.Fichier("source.dxf");
    m_poste->reponsesFichier = {source, source};
    m_poste->Cliquer<QToolButton>("cmdExporterDXF");
    m_poste->Deposer({source});
    const std::string avant = LireFichierEntier(source);
    m_poste->Cliquer<QToolButton>("cmdExporterDXF");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QVERIFY(DerniereBoite().texte.find("source.dxf") != std::string::npos);
    QVERIFY(LireFichierEntier(source) == avant);
}

void EssaiDecoupe2D::EchapFermeLaDecoupe() {
    Preparer();
    OuvrirDecoupe();
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Escape);
    QTRY_VERIFY(!m_poste->fenetre->DecoupeOuverte());
}

void EssaiDecoupe2D::OuvrirUnFichierFermeLaDecoupe() {
    Preparer();
    OuvrirDecoupe();
    m_poste->Deposer({m_poste->Fichier("autre.txt", RectangleTexte)});
    QVERIFY(!m_poste->fenetre->DecoupeOuverte());
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
}

void EssaiDecoupe2D::LesRaccourcisMenentAuGcode() {
    const std::string dessin = m_poste->Fichier("rectangle.txt", RectangleTexte);
    const std::string chemin = m_poste->dossier.Fichier("clavier.gcode");
    m_poste->reponsesFichier = {dessin, chemin};
    QWidget* fenetre = m_poste->fenetre.get();
    QTest::keyClick(fenetre, Qt::Key_O, Qt::ControlModifier);
    QTRY_COMPARE(Espace().TableauSequences.size(), std::size_t{1});
    QTest::keyClick(fenetre, Qt::Key_B, Qt::ControlModifier);
    QTRY_COMPARE(Espace().bloc.BlocX, 100.0F);
    m_poste->Trouver<QCheckBox>("chkCentrer_1").setChecked(true);
    QTest::keyClick(fenetre, Qt::Key_F9);
    QTRY_VERIFY(m_poste->fenetre->DecoupeOuverte());
    m_poste->Trouver<QCheckBox>("chkExportGcode2D").setChecked(true);
    QTest::keyClick(fenetre, Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(FichierExiste(chemin));
    QTest::keyClick(fenetre, Qt::Key_F1);
    QTRY_COMPARE(DerniereBoite().titre, std::string("Souris et clavier"));
}

QTEST_MAIN(EssaiDecoupe2D)
#include "essai_decoupe2d.moc"
