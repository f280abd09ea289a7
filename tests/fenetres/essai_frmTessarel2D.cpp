// The 2D window's files: opening in all ways, saving, starting anew, closing, as a person does it.
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "paths/fichier_projet.h"
#include "ui/canevas.h"
#include "ui/champ_nombre.h"
#include "ui/fichiers_recents.h"
#include "work2d/ui/libelles_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolButton>

#include <filesystem>

using namespace tessarel;
using essais::DeuxTracesTexte;
using essais::Poste2D;
using essais::RectangleTexte;

class EssaiTessarel2D : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_poste.reset(); }

    void LesLibellesSontCompletsDansLesDeuxLangues();
    void LAideNommeChaqueRaccourci();
    void AuDebutLeBlocEstCeluiDeLaMachine();

    void OuvrirParLeDialogue();
    void RenoncerAuDialogueNeChangeRien();
    void UnFichierIllisibleLaisseLeTravailTelQuel();
    void UneExtensionInconnueEstRefusee();
    void DeposerUnFichierLOuvre();
    void DeposerAutreChoseEstIgnore();
    void LesFichiersRecentsSeRouvrent();
    void UnFichierRecentDisparuEstOublie();
    void UnDessinSAjouteAceQuiEstLa();
    void LeTypeDeFichierSEffaceTroisDizainesDeSecondesApres();
    void UnProjet4AxesEstDitTsr4x();

    void UnProjetVideNeSEnregistrePas();
    void EnregistrerSousPuisRouvrir();
    void UneMauvaiseExtensionEstRefusee();
    void RemplacerUnProjet4AxesDemandeConfirmation();
    void UnDossierAbsentDonneUneAnomalie();
    void ReenregistrerSansNomEstUneErreur();
    void CtrlSEnregistreAvecOuSansNom();
    void UnBlocTropGrandEstLimiteALOuverture();
    void OuvrirUnProjetSurUnTravailModifieDemande();

    void UnNouveauProjetDemandeQuandIlYADesTraces();
    void FermerSansModificationNeDemandeRien();
    void FermerUnTravailModifieDemande();
    void RefuserDeNommerAnnuleLaFermeture();
    void LaPlaceDeLaFenetreRevient();
    void UneFenetreAgrandieGardeLesClesDePlace();

private:
    void Ouvrir(const std::string& chemin) {
        m_poste->reponsesFichier.push_back(chemin);
        m_poste->Cliquer<QToolButton>("cmdOuvrirFichierTS2D");
    }
    void OuvrirRectangle() { Ouvrir(m_poste->Fichier("rectangle.txt", RectangleTexte)); }
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] Boite DerniereBoite() const { return m_poste->DerniereBoite(); }
    [[nodiscard]] std::size_t NombreBoites() const { return m_poste->NombreBoites(); }

    std::unique_ptr<Poste2D> m_poste;
};

void EssaiTessarel2D::init() {
    m_poste = std::make_unique<Poste2D>();
    m_poste->OuvrirFenetre();
}

void EssaiTessarel2D::LesLibellesSontCompletsDansLesDeuxLangues() {
    for (const Langue langue : {Langue::Francais, Langue::English}) {
        AppliquerLibelles(*m_poste->fenetre, LibellesTessarel2D(), langue);
        const std::vector<std::string> defauts = DefautsLibelles(*m_poste->fenetre, LibellesTessarel2D());
        QVERIFY2(defauts.empty(), defauts.empty() ? "" : defauts.front().c_str());
    }
    QCOMPARE(m_poste->Trouver<QToolButton>("cmdOuvrirFichierTS2D").text(), QStringLiteral("Open"));
}

void EssaiTessarel2D::LAideNommeChaqueRaccourci() {
    for (const Langue langue : {Langue::Francais, Langue::English}) {
        m_poste.reset();
        m_poste = std::make_unique<Poste2D>(langue);
        m_poste->OuvrirFenetre();
        m_poste->Cliquer<QToolButton>("cmdAide");
        QCOMPARE(m_poste->NombreBoites(), std::size_t{1});
        const bool francais = langue == Langue::Francais;
        QCOMPARE(m_poste->DerniereBoite().titre,
                 std::string(francais ? "Souris et clavier" : "Mouse and keyboard"));
        const QString aide = QString::fromStdString(m_poste->DerniereBoite().texte);
        for (const Libelle& libelle : LibellesTessarel2D()) {
            QString touches = QString::fromLatin1(libelle.raccourci);
            if (touches.isEmpty()) continue;
            touches.replace(QStringLiteral("Return"),
                            francais ? QStringLiteral("Entrée") : QStringLiteral("Enter"));
            if (francais) touches.replace(QStringLiteral("Esc"), QStringLiteral("Échap"));
            QVERIFY2(aide.contains(touches), libelle.controle);
        }
        // One key a line, and its meaning.
        QVERIFY(aide.startsWith(u'\t'));
        for (const QString& ligne : aide.mid(1).split(QStringLiteral("\r\n"))) {
            QVERIFY2(ligne.count(u'\t') <= 1 && !ligne.endsWith(u'\t'), qPrintable(ligne));
            for (const QChar signe : {u':', u';', u'!', u'?'})
                QVERIFY2(!francais || !ligne.contains(QStringLiteral(" ") + signe), qPrintable(ligne));
        }
        QMessageBox boite;
        PreparerBoite(boite, m_poste->DerniereBoite());
        boite.show();
        QApplication::processEvents();
        QVERIFY(boite.width() <= 800 && boite.height() <= 760);
        const auto* mots = boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        QVERIFY(mots != nullptr && mots->width() >= mots->sizeHint().width()); // nothing is cut off
        QVERIFY(essais::SauverImage(boite, QStringLiteral("frmTessarel2D-aide-") +
                                               (francais ? QStringLiteral("fr") : QStringLiteral("en"))));
    }
}

void EssaiTessarel2D::AuDebutLeBlocEstCeluiDeLaMachine() {
    // (Defaut): travel 980 x 510, wire to block 15: Int(965 x 0.8 / 10) x 10 = 770, Int(495 x 0.8 / 10) x 10
    // = 390.
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("770"));
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_1").text(), QStringLiteral("390"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblDimensionsBloc").text(), QStringLiteral("770.0 mm x 390.0 mm"));
    QVERIFY(Espace().TableauSequences.empty());
    QVERIFY(m_poste->fenetre->windowTitle().startsWith(QStringLiteral("Tessarel - 2D")));
    QVERIFY(!m_poste->Trouver<QToolButton>("cmdActualiserSauvegarde").isVisible());
    QCOMPARE(NombreBoites(), std::size_t{0});
    // Table and block are drawn.
    QVERIFY(!m_poste->Trouver<Canevas>("pctSequTS2D").Montre(Canevas::CoucheFond).Liste().traits.empty());
}

void EssaiTessarel2D::OuvrirParLeDialogue() {
    OuvrirRectangle();
    QCOMPARE(m_poste->demandes.size(), std::size_t{1});
    const DemandeFichier& demande = m_poste->demandes[0];
    QCOMPARE(QString::fromStdString(demande.titre),
             QStringLiteral("Choisissez un fichier (.dxf, .tsr, .qnt, .cpx, .dat, .plt, .eps, .txt)"));
    QVERIFY(demande.filtre.starts_with("Tessarel (*.tsr)|*.tsr|Quenta (*.qnt)|*.qnt|DAO (*.dxf)|*.dxf|"));
    QVERIFY(demande.filtre.ends_with("|*.*"));
    QCOMPARE(demande.dossier, m_poste->dossier.Chemin());
    // All known files are proposed first.
    QCOMPARE(demande.indiceFiltre, 10);

    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    const Sequence& trace = Espace().TableauSequences[0];
    QCOMPARE(trace.Points.size(), std::size_t{5});
    QCOMPARE(trace.XMax, 100.0F);
    QCOMPARE(trace.YMax, 50.0F);
    QVERIFY(Espace().modifie);
    QVERIFY(m_poste->fenetre->isWindowModified());
    QVERIFY(!m_poste->Trouver<Canevas>("pctSequTS2D").Montre(Canevas::CoucheTrace).Liste().traits.empty());
    QVERIFY(m_poste->Trouver<QLabel>("lblTypeFichierTS2D")
                .text()
                .startsWith(QStringLiteral("rectangle.txt : Profil")));
    QCOMPARE(LireIni("Fichiers", "DernierRepertoire", ""), m_poste->dossier.Chemin() + "/");
    QCOMPARE(NombreBoites(), std::size_t{0});
}

void EssaiTessarel2D::RenoncerAuDialogueNeChangeRien() {
    m_poste->Cliquer<QToolButton>("cmdOuvrirFichierTS2D");
    QCOMPARE(m_poste->demandes.size(), std::size_t{1});
    QVERIFY(Espace().TableauSequences.empty());
    QVERIFY(!Espace().modifie);
    QCOMPARE(LireIni("Fichiers", "DernierRepertoire", "aucun"), std::string("aucun"));
}

void EssaiTessarel2D::UnFichierIllisibleLaisseLeTravailTelQuel() {
    OuvrirRectangle();
    const std::vector<Sequence> avant = Espace().TableauSequences;
    Ouvrir(m_poste->dossier.Fichier("absent.dxf"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Erreur de lecture de fichier"));
    QVERIFY(DerniereBoite().texte.find("absent.dxf") != std::string::npos);
    QVERIFY(Espace().TableauSequences == avant);
}

void EssaiTessarel2D::UneExtensionInconnueEstRefusee() {
    Ouvrir(m_poste->Fichier("photo.gif", "GIF89a"));
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Ouverture impossible"));
    QVERIFY(
        DerniereBoite().texte.starts_with("Extension de fichier non valide. Tessarel sait ouvrir les .tsr"));
    QVERIFY(Espace().TableauSequences.empty());
}

void EssaiTessarel2D::DeposerUnFichierLOuvre() {
    m_poste->Deposer({m_poste->Fichier("deux.TXT", DeuxTracesTexte)});
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    QVERIFY(m_poste->Trouver<QLabel>("lblTypeFichierTS2D")
                .text()
                .startsWith(QStringLiteral("deux.TXT : 2 Profil(s)")));
}

void EssaiTessarel2D::DeposerAutreChoseEstIgnore() {
    QMimeData donnees;
    donnees.setText(QStringLiteral("du texte"));
    QDragEnterEvent entree({400, 300}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_poste->fenetre.get(), &entree);
    QVERIFY(!entree.isAccepted());
}

void EssaiTessarel2D::LesFichiersRecentsSeRouvrent() {
    auto& menu = m_poste->Trouver<QMenu>("menuRecents");
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 1);
    QVERIFY(!menu.actions().at(0)->isEnabled());
    OuvrirRectangle();
    Ouvrir(m_poste->Fichier("deux.txt", DeuxTracesTexte));
    emit menu.aboutToShow();
    QCOMPARE(menu.actions().size(), 2);
    QCOMPARE(menu.actions().at(0)->text(), QStringLiteral("deux.txt"));
    QCOMPARE(menu.actions().at(1)->text(), QStringLiteral("rectangle.txt"));
    const std::size_t avant = Espace().TableauSequences.size();
    menu.actions().at(1)->trigger();
    QCOMPARE(Espace().TableauSequences.size(), avant + 1);
    QCOMPARE(FichiersRecents().front(), m_poste->dossier.Fichier("rectangle.txt"));
    QCOMPARE(FichiersRecents().size(), std::size_t{2});
}

void EssaiTessarel2D::UnFichierRecentDisparuEstOublie() {
    OuvrirRectangle();
    std::filesystem::remove(m_poste->dossier.Fichier("rectangle.txt"));
    auto& menu = m_poste->Trouver<QMenu>("menuRecents");
    emit menu.aboutToShow();
    menu.actions().at(0)->trigger();
    QCOMPARE(NombreBoites(), std::size_t{1});
    QVERIFY(FichiersRecents().empty());
}

void EssaiTessarel2D::UnDessinSAjouteAceQuiEstLa() {
    OuvrirRectangle();
    Ouvrir(m_poste->Fichier("deux.txt", DeuxTracesTexte));
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
}

void EssaiTessarel2D::LeTypeDeFichierSEffaceTroisDizainesDeSecondesApres() {
    OuvrirRectangle();
    auto* minuterie = m_poste->fenetre->findChild<QTimer*>(QStringLiteral("TimerAffichageTypeFichier"));
    QVERIFY(minuterie != nullptr && minuterie->isActive());
    QCOMPARE(minuterie->interval(), 30000);
    minuterie->start(1);
    QTRY_VERIFY(m_poste->Trouver<QLabel>("lblTypeFichierTS2D").text().isEmpty());
}

void EssaiTessarel2D::UnProjet4AxesEstDitTsr4x() {
    Projet4axes projet;
    projet.Emplanture.sequence.Points.resize(2);
    projet.Emplanture.sequence.Points[1].X = 100;
    projet.Saumon = projet.Emplanture;
    EcrireProjet4axes(m_poste->dossier.Fichier("aile.tsr"), projet);
    Ouvrir(m_poste->dossier.Fichier("aile.tsr"));
    QCOMPARE(m_poste->Trouver<QLabel>("lblTypeFichierTS2D").text(), QStringLiteral("tsr4x"));
    // Its two profiles come as paths, and saving can't fall back on the 4-axis file.
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    QVERIFY(Espace().cheminProjet.empty());
}

void EssaiTessarel2D::UnProjetVideNeSEnregistrePas() {
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().texte, std::string("Un projet vide ne peut pas être sauvegardé."));
    QVERIFY(m_poste->demandes.empty());
}

void EssaiTessarel2D::EnregistrerSousPuisRouvrir() {
    OuvrirRectangle();
    m_poste->Cliquer<QCheckBox>("chkCentrer_1");
    const std::string chemin = m_poste->dossier.Fichier("projet.tsr");
    m_poste->reponsesFichier.push_back(chemin);
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(QString::fromStdString(m_poste->demandes.back().titre),
             QStringLiteral("Enregistrer le projet sous..."));
    QCOMPARE(m_poste->demandes.back().filtre,
             std::string("Projet Tessarel(*.tsr)|*.tsr|Tous les fichiers (*.*)|*.*"));
    QVERIFY(m_poste->demandes.back().enregistrer);
    QCOMPARE(Espace().cheminProjet, chemin);
    QVERIFY(!Espace().modifie);
    QVERIFY(m_poste->fenetre->windowTitle().startsWith(QStringLiteral("projet.tsr")));
    QVERIFY(!m_poste->fenetre->isWindowModified());
    QVERIFY(m_poste->Trouver<QToolButton>("cmdActualiserSauvegarde").isVisible());
    QCOMPARE(LireIni("Fichiers", "DernierProjet", ""), chemin);
    QCOMPARE(LireOngletProjet(chemin), std::string("TS2D"));

    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D"); // the question's default answer keeps the work
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    m_poste->boites.reponses = {ReponseBoite::Non};
    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    QVERIFY(Espace().TableauSequences.empty());
    QVERIFY(Espace().cheminProjet.empty());
    Ouvrir(chemin);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    QCOMPARE(Espace().TableauSequences[0].XMin, 340.0F);
    QCOMPARE(m_poste->Trouver<QLabel>("lblTypeFichierTS2D").text(), QStringLiteral("tsr2d"));
    QVERIFY(!Espace().modifie);
}

void EssaiTessarel2D::UneMauvaiseExtensionEstRefusee() {
    OuvrirRectangle();
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("projet.dxf"));
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(
        DerniereBoite().texte,
        std::string("L'extension de fichier n'est pas correcte, un projet doit être sauvegardé en .tsr"));
    QVERIFY(!FichierExiste(m_poste->dossier.Fichier("projet.dxf")));
    QVERIFY(Espace().cheminProjet.empty());
}

void EssaiTessarel2D::RemplacerUnProjet4AxesDemandeConfirmation() {
    const std::string chemin = m_poste->dossier.Fichier("aile.tsr");
    EcrireProjet4axes(chemin, {});
    OuvrirRectangle();
    m_poste->reponsesFichier = {chemin, chemin};
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Type de projet"));
    QVERIFY(DerniereBoite().texte.starts_with(
        "Attention, vous allez remplacer un fichier contenant un projet 4 axes"));
    QCOMPARE(LireOngletProjet(chemin), std::string("C4X"));
    QVERIFY(Espace().modifie);
    m_poste->boites.reponses = {ReponseBoite::Oui};
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(LireOngletProjet(chemin), std::string("TS2D"));
    QVERIFY(!Espace().modifie);
}

void EssaiTessarel2D::UnDossierAbsentDonneUneAnomalie() {
    OuvrirRectangle();
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("absent/projet.tsr"));
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Anomalie"));
    QVERIFY(DerniereBoite().texte.starts_with("Erreur lors de la procédure d'enregistrement."));
    QVERIFY(Espace().modifie);
    QVERIFY(Espace().cheminProjet.empty());
}

void EssaiTessarel2D::ReenregistrerSansNomEstUneErreur() {
    m_poste->Trouver<QToolButton>("cmdActualiserSauvegarde").click();
    QCOMPARE(NombreBoites(), std::size_t{1});
    QCOMPARE(DerniereBoite().titre, std::string("Erreur"));
    QCOMPARE(DerniereBoite().icone, IconeBoite::Critique);
    QVERIFY(DerniereBoite().texte.starts_with(
        "Le projet n'a pas de nom, ce n'est pas normal, merci de remonter le bug à "));
}

void EssaiTessarel2D::CtrlSEnregistreAvecOuSansNom() {
    OuvrirRectangle();
    const std::string chemin = m_poste->dossier.Fichier("projet.tsr");
    m_poste->reponsesFichier.push_back(chemin);
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(Espace().cheminProjet, chemin);
    const std::size_t demandes = m_poste->demandes.size();
    m_poste->Cliquer<QCheckBox>("chkCentrer_2");
    QVERIFY(Espace().modifie);
    // The key presses the button for a moment, as a finger would.
    QTest::keyClick(m_poste->fenetre.get(), Qt::Key_S, Qt::ControlModifier);
    QTRY_VERIFY(!Espace().modifie);
    QCOMPARE(m_poste->demandes.size(), demandes);
    QCOMPARE(LireProjet2D(chemin, false).TableauSequences[0].YMin, 170.0F);
}

void EssaiTessarel2D::UnBlocTropGrandEstLimiteALOuverture() {
    Projet2D projet;
    projet.BlocX = 2000;
    projet.BlocY = 2000;
    projet.TypeEntree = 2;
    projet.TypeSortie = 1;
    projet.TableauSequences.resize(1);
    projet.TableauSequences[0].Points.resize(2);
    projet.TableauSequences[0].Points[1].X = 10;
    EcrireProjet2D(m_poste->dossier.Fichier("grand.tsr"), projet);
    Ouvrir(m_poste->dossier.Fichier("grand.tsr"));
    // Told so: the width grows back to 980 - 15, without the third term.
    QCOMPARE(Espace().bloc.BlocX, 965.0F);
    QCOMPARE(Espace().bloc.BlocY, 495.0F);
    QCOMPARE(m_poste->Trouver<ChampNombre>("txtBloc_0").text(), QStringLiteral("965"));
    QVERIFY(m_poste->Trouver<QToolButton>("optEntrerBloc_2").isChecked());
    QVERIFY(m_poste->Trouver<QToolButton>("optSortirBloc_1").isChecked());
}

void EssaiTessarel2D::OuvrirUnProjetSurUnTravailModifieDemande() {
    OuvrirRectangle();
    const std::string chemin = m_poste->dossier.Fichier("projet.tsr");
    m_poste->reponsesFichier.push_back(chemin);
    m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    Ouvrir(m_poste->Fichier("deux.txt", DeuxTracesTexte));
    Ouvrir(chemin); // cancelled
    QCOMPARE(DerniereBoite().texte, std::string("Voulez-vous effectuer une sauvegarde du projet en cours?"));
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{3});
    m_poste->boites.reponses = {ReponseBoite::Non};
    Ouvrir(chemin);
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
}

void EssaiTessarel2D::UnNouveauProjetDemandeQuandIlYADesTraces() {
    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    QCOMPARE(NombreBoites(), std::size_t{0});
    OuvrirRectangle();
    m_poste->Saisir("txtBloc_0", QStringLiteral("100\r"));
    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    QCOMPARE(DerniereBoite().texte, std::string("Voulez-vous effectuer une sauvegarde du projet en cours?"));
    QCOMPARE(DerniereBoite().titre, std::string("Nouveau projet"));
    QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    // Yes saves first.
    m_poste->boites.reponses = {ReponseBoite::Oui};
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("garde.tsr"));
    m_poste->Cliquer<QToolButton>("cmdNouveauProjetTS2D");
    QVERIFY(FichierExiste(m_poste->dossier.Fichier("garde.tsr")));
    QVERIFY(Espace().TableauSequences.empty());
    QCOMPARE(Espace().bloc.BlocX, 770.0F);
}

void EssaiTessarel2D::FermerSansModificationNeDemandeRien() {
    QVERIFY(m_poste->fenetre->close());
    QCOMPARE(NombreBoites(), std::size_t{0});
    QCOMPARE(LireIni("Parametres", "OngletActif", ""), std::string("TS2D"));
    QCOMPARE(LireIni("Parametres", "MatiereUtilisee", ""), std::string("Par defaut"));
    QCOMPARE(LireIni("Parametres", "WindowState", ""), std::string("0"));
}

void EssaiTessarel2D::FermerUnTravailModifieDemande() {
    OuvrirRectangle();
    QVERIFY(!m_poste->fenetre->close());
    QVERIFY(m_poste->fenetre->isVisible());
    QCOMPARE(DerniereBoite().texte, std::string("Sauvegarder avant de quitter?"));
    QCOMPARE(DerniereBoite().titre, std::string("Fermeture de Tessarel"));
    QCOMPARE(DerniereBoite().boutons, BoutonsBoite::OuiNonAnnuler);
    QCOMPARE(LireIni("Parametres", "OngletActif", ""), std::string(""));
    m_poste->boites.reponses = {ReponseBoite::Oui};
    m_poste->reponsesFichier.push_back(m_poste->dossier.Fichier("fin.tsr"));
    QVERIFY(m_poste->fenetre->close());
    QVERIFY(FichierExiste(m_poste->dossier.Fichier("fin.tsr")));
}

void EssaiTessarel2D::RefuserDeNommerAnnuleLaFermeture() {
    OuvrirRectangle();
    m_poste->boites.reponses = {ReponseBoite::Oui};
    QVERIFY(!m_poste->fenetre->close());
    QVERIFY(m_poste->fenetre->isVisible());
    m_poste->boites.reponses = {ReponseBoite::Non};
    QVERIFY(m_poste->fenetre->close());
}

void EssaiTessarel2D::LaPlaceDeLaFenetreRevient() {
    m_poste->fenetre->setGeometry(40, 30, 1000, 600);
    QVERIFY(m_poste->fenetre->close());
    // 15 twips to the pixel.
    QCOMPARE(LireIni("Parametres", "FenetreLeft", ""), std::string("600"));
    QCOMPARE(LireIni("Parametres", "FenetreTop", ""), std::string("450"));
    QCOMPARE(LireIni("Parametres", "FenetreWidth", ""), std::string("15000"));
    QCOMPARE(LireIni("Parametres", "FenetreHeight", ""), std::string("9000"));
    const frmTessarel2D autre;
    QCOMPARE(autre.geometry(), QRect(40, 30, 1000, 600));
}

void EssaiTessarel2D::UneFenetreAgrandieGardeLesClesDePlace() {
    EcrireIni("Parametres", "FenetreLeft", "777");
    m_poste->fenetre->showMaximized();
    QVERIFY(m_poste->fenetre->close());
    QCOMPARE(LireIni("Parametres", "FenetreLeft", ""), std::string("777"));
    QCOMPARE(LireIni("Parametres", "WindowState", ""), std::string("2"));
    const frmTessarel2D autre;
    QVERIFY(autre.isMaximized());
}

QTEST_MAIN(EssaiTessarel2D)
#include "essai_frmTessarel2D.moc"
