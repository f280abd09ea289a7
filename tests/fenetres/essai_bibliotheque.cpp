// The library in the 2D window, as a person uses it: the tree, previews, deletion, import, files from
// outside.
#include "fenetres/images.h"
#include "fenetres/poste_2d.h"
#include "paths/fichier_projet.h"
#include "ui/canevas.h"
#include "ui/theme.h"
#include "work2d/ui/libelles_2d.h"
#include "work2d/ui/panneau_bibliotheque.h"

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <filesystem>

using namespace tessarel;
using essais::DeuxTracesTexte;
using essais::Poste2D;
using essais::RectangleTexte;

namespace {

constexpr const char* CarreDxf = "0\nSECTION\n2\nENTITIES\n"
                                 "0\nLINE\n8\nbords\n10\n0\n20\n0\n11\n10\n21\n0\n"
                                 "0\nLINE\n8\nbords\n10\n10\n20\n10\n11\n10\n21\n0\n"
                                 "0\nLINE\n8\nbords\n10\n10\n20\n10\n11\n0\n21\n10\n"
                                 "0\nLINE\n8\nautres\n10\n0\n20\n10\n11\n0\n21\n0\n"
                                 "0\nTEXT\n8\nautres\n10\n0\n20\n0\n40\n5\n1\nnote\n"
                                 "0\nENDSEC\n0\nEOF\n";

} // namespace

class EssaiBibliotheque : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_poste = std::make_unique<Poste2D>();
        m_corbeilleAvant = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(m_poste->dossier.Fichier("donnees")));
        DossiersProgramme.Bibliotheque = m_poste->dossier.Fichier("Bibliotheque");
        std::filesystem::create_directories(Biblio("Ailes/vide"));
        EcrireFichierAtomique(Biblio("rectangle.txt"), RectangleTexte);
        EcrireFichierAtomique(Biblio("Ailes/deux.TXT"), DeuxTracesTexte);
        EcrireFichierAtomique(Biblio("lisez-moi.pdf"), "x");
        m_poste->OuvrirFenetre();
    }
    void cleanup() {
        m_poste.reset();
        qputenv("XDG_DATA_HOME", m_corbeilleAvant);
    }

    void LArbreMontreLesDossiersEtLesFichiersConnus() {
        QCOMPARE(Noms(), QStringList({"Bibliotheque", "Ailes", "vide", "deux.TXT", "rectangle.txt"}));
        QVERIFY(Arbre().topLevelItem(0)->isExpanded());
        QVERIFY(!Avis().isVisible());
    }

    void UneBibliothequeVideOuAbsenteNAQueSaRacine() {
        std::filesystem::remove_all(Biblio(""));
        m_poste->Cliquer<QToolButton>("cmdRafraichir");
        QCOMPARE(Noms(), QStringList({"Bibliotheque"}));
    }

    void UnClicMontreLeFichierSansToucherAuProjet() {
        Cliquer("deux.TXT");
        QTRY_COMPARE(Type().text(), QStringLiteral("deux.TXT : 2 Profil(s)"));
        QCOMPARE(m_poste->Trouver<QLabel>("lblCoeffNettoyage").text(), QStringLiteral("Nettoyage : 0"));
        QVERIFY(Bandeau().isVisible());
        QVERIFY(Espace().TableauSequences.empty());
        QVERIFY(!Espace().modifie);
        // The two paths reach from 0 to 220 mm: all of it is in view.
        const auto& canevas = m_poste->Trouver<Canevas>("pctSequTS2D");
        const QRectF zone = canevas.ZoneDessin();
        QVERIFY(zone.contains(canevas.EnPixels({0, 0})));
        QVERIFY(zone.contains(canevas.EnPixels({220, 50})));
        QVERIFY(!zone.contains(canevas.EnPixels({400, 50})));
    }

    void UnClicSurUnDossierNeFaitRien() {
        Cliquer("Ailes");
        QApplication::processEvents();
        QVERIFY(!Bandeau().isVisible());
        QVERIFY(Type().text().isEmpty());
        QCOMPARE(m_poste->boites.boites.size(), std::size_t{0});
    }

    void LesFlechesMontrentAussiLesFichiers() {
        Choisir("Ailes");
        Arbre().setFocus();
        QTest::keyClick(&Arbre(), Qt::Key_End);
        QTRY_COMPARE(Type().text(), QStringLiteral("rectangle.txt : Profil"));
    }

    void EchapRendLaVueAuProjet() {
        QVERIFY(m_poste->fenetre->OuvrirFichier(Biblio("rectangle.txt")));
        Cliquer("deux.TXT");
        QTRY_VERIFY(Bandeau().isVisible());
        QTest::keyClick(m_poste->fenetre.get(), Qt::Key_Escape);
        QVERIFY(!Bandeau().isVisible());
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    }

    void LeDoubleClicPrendLeFichierDansLeProjet() {
        DoubleCliquer("rectangle.txt");
        QTRY_COMPARE(Espace().TableauSequences.size(), std::size_t{1});
        QVERIFY(!Bandeau().isVisible());
        QCOMPARE(Selection(), Biblio("rectangle.txt"));
        QApplication::processEvents();
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
    }

    void EntreePrendLeFichierMontre() {
        Cliquer("deux.TXT");
        QTRY_VERIFY(Bandeau().isVisible());
        QTest::keyClick(&Arbre(), Qt::Key_Return);
        QTRY_COMPARE(Espace().TableauSequences.size(), std::size_t{2});
    }

    void LeBoutonDuBandeauPrendLeFichierMontre() {
        Cliquer("deux.TXT");
        QTRY_VERIFY(Bandeau().isVisible());
        m_poste->Cliquer<QToolButton>("cmdOuvrirApercu");
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
        QVERIFY(!Bandeau().isVisible());
    }

    void UnFichierChangeApresLApercuEstReluALOuverture() {
        Cliquer("rectangle.txt");
        QTRY_VERIFY(Bandeau().isVisible());
        EcrireFichierAtomique(Biblio("rectangle.txt"), DeuxTracesTexte);
        m_poste->Cliquer<QToolButton>("cmdOuvrirApercu");
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{2});
    }

    void UnFichierIllisibleLeDit() {
        EcrireFichierAtomique(Biblio("mauvais.dxf"), "rien de bon");
        m_poste->Cliquer<QToolButton>("cmdRafraichir");
        Cliquer("mauvais.dxf");
        QTRY_COMPARE(m_poste->boites.boites.size(), std::size_t{1});
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Erreur de lecture de fichier"));
        QVERIFY(!Bandeau().isVisible());
    }

    void UnProjetSansPointLeDit() {
        Projet2D projet;
        projet.BlocX = 100;
        projet.BlocY = 50;
        EcrireProjet2D(Biblio("vide.tsr"), projet);
        m_poste->Cliquer<QToolButton>("cmdRafraichir");
        Cliquer("vide.tsr");
        QTRY_COMPARE(m_poste->boites.boites.size(), std::size_t{1});
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Erreur de lecture de fichier"));
    }

    void LeTypeSEffaceQuandLeMinuteurFinit() {
        Cliquer("deux.TXT");
        QTRY_VERIFY(!Type().text().isEmpty());
        auto& minuteur = m_poste->Trouver<QTimer>("TimerAffichageTypeFichier");
        QVERIFY(minuteur.isActive());
        minuteur.start(1);
        QTRY_VERIFY(Type().text().isEmpty());
        QVERIFY(m_poste->Trouver<QLabel>("lblCoeffNettoyage").text().isEmpty());
    }

    void UnFichierEnregistreParUnAutreProgrammeParait() {
        EcrireFichierAtomique(Biblio("Ailes/vide/neuf.dat"), "1 0\n0 0\n");
        QTRY_VERIFY_WITH_TIMEOUT(Noms().contains(QStringLiteral("neuf.dat")), 5000);
        // Folders made meanwhile are watched too.
        std::filesystem::create_directories(Biblio("Nouveau"));
        QTRY_VERIFY_WITH_TIMEOUT(Noms().contains(QStringLiteral("Nouveau")), 5000);
        EcrireFichierAtomique(Biblio("Nouveau/b.eps"), "x");
        QTRY_VERIFY_WITH_TIMEOUT(Noms().contains(QStringLiteral("b.eps")), 5000);
        std::filesystem::remove(Biblio("rectangle.txt"));
        QTRY_VERIFY_WITH_TIMEOUT(!Noms().contains(QStringLiteral("rectangle.txt")), 5000);
    }

    void CeQuiEtaitDeplieEtChoisiLeReste() {
        Cliquer("deux.TXT");
        EcrireFichierAtomique(Biblio("a.dat"), "x");
        QTRY_VERIFY_WITH_TIMEOUT(Noms().contains(QStringLiteral("a.dat")), 5000);
        QVERIFY(Noeud("Ailes")->isExpanded());
        QVERIFY(!Noeud("vide")->isExpanded());
        QCOMPARE(Selection(), Biblio("Ailes/deux.TXT"));
    }

    void UnFichierDAilleursEstDitExterieur() {
        QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("ailleurs.txt", RectangleTexte)));
        QCOMPARE(Avis().text(), QStringLiteral("Fichier extérieur à la bibliothèque"));
        QVERIFY(Avis().isVisible());
        QVERIFY(m_poste->fenetre->OuvrirFichier(Biblio("Ailes/deux.TXT")));
        QVERIFY(!Avis().isVisible());
        QCOMPARE(Selection(), Biblio("Ailes/deux.TXT"));
    }

    void UnProjetEnregistreDansLaBibliothequeYEstChoisi() {
        QVERIFY(m_poste->fenetre->OuvrirFichier(Biblio("rectangle.txt")));
        Enregistrer(Biblio("projet.tsr"));
        QCOMPARE(Selection(), Biblio("projet.tsr"));
        QVERIFY(!Avis().isVisible());
        Enregistrer(m_poste->dossier.Fichier("dehors.tsr"));
        QVERIFY(Avis().isVisible());
        m_poste->Cliquer<QToolButton>("cmdRafraichir");
        QCOMPARE(Avis().text(), QStringLiteral("Fichier extérieur à la bibliothèque"));
    }

    void SupprimerSansSelectionLeDit() {
        m_poste->Cliquer<QToolButton>("cmdEffacerFichier");
        QCOMPARE(m_poste->boites.boites.size(), std::size_t{1});
        QCOMPARE(m_poste->boites.boites[0].texte,
                 std::string("Vous devez d'abord cliquer sur le fichier à supprimer"));
        QCOMPARE(m_poste->boites.boites[0].titre, std::string("Erreur de saisie"));
    }

    void SupprimerMetLeFichierDansLaCorbeille() {
        Cliquer("deux.TXT");
        QTRY_VERIFY(Bandeau().isVisible());
        m_poste->Cliquer<QToolButton>("cmdEffacerFichier");
        QCOMPARE(m_poste->boites.boites.size(), std::size_t{1});
        QCOMPARE(m_poste->boites.boites[0].texte, std::string("Déplacement dans la corbeille effectué"));
        QCOMPARE(m_poste->boites.boites[0].titre, std::string("Suppression"));
        QVERIFY(!Noms().contains(QStringLiteral("deux.TXT")));
        QVERIFY(!Bandeau().isVisible());
        QCOMPARE(LireFichierEntier(m_poste->dossier.Fichier("donnees/Trash/files/deux.TXT")),
                 std::string(DeuxTracesTexte));
    }

    void LaToucheSupprDansLArbreSupprimeAussi() {
        Cliquer("rectangle.txt");
        QTRY_VERIFY(Bandeau().isVisible());
        Arbre().setFocus();
        QTest::keyClick(&Arbre(), Qt::Key_Delete);
        QTRY_VERIFY(!Noms().contains(QStringLiteral("rectangle.txt")));
    }

    void UneSuppressionImpossibleLeDit() {
        Choisir("rectangle.txt");
        std::filesystem::remove(Biblio("rectangle.txt"));
        m_poste->Cliquer<QToolButton>("cmdEffacerFichier");
        QCOMPARE(m_poste->boites.boites.back().texte,
                 std::string("Le déplacement dans la corbeille n'a pas pu être effectué"));
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Echec de la suppression"));
    }

    void ImporterCopieLesFichiersEtRemplace() {
        const std::string a = m_poste->Fichier("a.dat", "1 0\n0 0\n");
        const std::string b = m_poste->Fichier("rectangle.txt", DeuxTracesTexte);
        Repondre({{a, b}, {Biblio("")}});
        m_poste->Cliquer<QToolButton>("cmdImporterProfil");
        QCOMPARE(m_demandes.size(), std::size_t{2});
        QCOMPARE(m_demandes[0].titre,
                 std::string("Choisissez les fichiers à copier dans la bibliothèque et cliquez sur Ouvrir"));
        QVERIFY(m_demandes[0].plusieurs);
        QVERIFY(m_demandes[1].dossierSeul);
        QVERIFY(m_demandes[1].titre.starts_with("Sélectionnez le dossier"));
        QCOMPARE(m_demandes[1].dossier, DossiersProgramme.Bibliotheque);
        QCOMPARE(m_poste->boites.boites.back().texte,
                 std::string("Les fichiers ont été copiés à l'emplacement demandé."));
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Copie de fichiers"));
        QVERIFY(Noms().contains(QStringLiteral("a.dat")));
        QCOMPARE(LireFichierEntier(Biblio("rectangle.txt")), std::string(DeuxTracesTexte));
    }

    void RenoncerAuDossierAnnuleLaCopie() {
        Repondre({{m_poste->Fichier("a.dat", "1 0\n0 0\n")}, {}});
        m_poste->Cliquer<QToolButton>("cmdImporterProfil");
        QCOMPARE(m_poste->boites.boites.back().texte, std::string("Copie annulée"));
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Copie de fichiers"));
        QVERIFY(!FichierExiste(Biblio("a.dat")));
    }

    void UneCopieImpossibleDitLequel() {
        Repondre({{m_poste->dossier.Fichier("absent.dat")}, {Biblio("")}});
        m_poste->Cliquer<QToolButton>("cmdImporterProfil");
        QVERIFY(m_poste->boites.boites.back().texte.find("absent.dat") != std::string::npos);
        QCOMPARE(m_poste->boites.boites.back().titre, std::string("Copie de fichiers"));
    }

    void LaLigneDEtatEtLeRapportDisentCeQuiFutLu() {
        auto& bouton = m_poste->Trouver<QToolButton>("cmdRapportOuverture");
        QVERIFY(!bouton.isEnabled());
        QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("carre.dxf", CarreDxf)));
        QCOMPARE(m_poste->fenetre->statusBar()->currentMessage(),
                 QStringLiteral(
                     "carre.dxf : tracés : 1, points : 5, joints : 3, retournés : 1, laissés de côté : 1"));
        m_poste->Cliquer<QToolButton>("cmdRapportOuverture");
        auto* rapport = m_poste->fenetre->findChild<QPlainTextEdit*>("txtRapportOuverture");
        QVERIFY(rapport != nullptr && rapport->isVisible());
        const QString texte = rapport->toPlainText();
        for (const char* ligne : {"LINE : 4", "bords : 3", "autres : 1", "TEXT : 1", "Dont retournés : 1"})
            QVERIFY2(texte.contains(QString::fromUtf8(ligne)), qPrintable(texte));
        m_poste->Trouver<QDialog>("frmRapportOuverture").close();
    }

    void UnProfilDitSaForme() {
        QVERIFY(m_poste->fenetre->OuvrirFichier(std::string(TESSAREL_RACINE) + "/samples/naca2412.dat"));
        m_poste->Cliquer<QToolButton>("cmdRapportOuverture");
        const QString texte = m_poste->Trouver<QPlainTextEdit>("txtRapportOuverture").toPlainText();
        QVERIFY2(texte.contains(QStringLiteral("Selig")), qPrintable(texte));
    }

    void UnDessinSansRienADecouperDitPourquoi() {
        const std::string texteSeul = "0\nSECTION\n2\nENTITIES\n0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n5\n1\nmot\n"
                                      "0\nENDSEC\n0\nEOF\n";
        QVERIFY(!m_poste->fenetre->OuvrirFichier(m_poste->Fichier("mots.dxf", texteSeul)));
        QVERIFY2(m_poste->boites.boites.back().texte.find("TEXT") != std::string::npos,
                 m_poste->boites.boites.back().texte.c_str());
    }

    void LaBibliothequeSeMasqueEtSeCachePendantLaDecoupe() {
        auto& panneau = m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque");
        QVERIFY(panneau.isVisible());
        m_poste->Cliquer<QToolButton>("cmdBibliotheque");
        QVERIFY(!panneau.isVisible());
        m_poste->Cliquer<QToolButton>("cmdBibliotheque");
        QVERIFY(panneau.isVisible());
        QVERIFY(m_poste->fenetre->OuvrirFichier(Biblio("rectangle.txt")));
        m_poste->Cliquer<QPushButton>("cmdDecouper");
        QVERIFY(!panneau.isVisible());
        m_poste->Cliquer<QPushButton>("cmdAnnulerDecoupe");
        QVERIFY(panneau.isVisible());
    }

    void ChangerLeBlocFermeLApercu() {
        Cliquer("deux.TXT");
        QTRY_VERIFY(Bandeau().isVisible());
        m_poste->Saisir("txtBloc_0", QStringLiteral("321\r"));
        QVERIFY(!Bandeau().isVisible());
        QCOMPARE(Espace().bloc.BlocX, 321.0F);
    }

private:
    [[nodiscard]] static std::string Biblio(const std::string& suite) {
        return JoindreChemin(DossiersProgramme.Bibliotheque, suite);
    }
    [[nodiscard]] QTreeWidget& Arbre() const { return m_poste->Trouver<QTreeWidget>("TreeBibliothequeTS2D"); }
    [[nodiscard]] QLabel& Type() const { return m_poste->Trouver<QLabel>("lblTypeFichierTS2D"); }
    [[nodiscard]] QLabel& Avis() const { return m_poste->Trouver<QLabel>("lblFichierExterieur"); }
    [[nodiscard]] QFrame& Bandeau() const { return m_poste->Trouver<QFrame>("bandeauApercu"); }
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] std::string Selection() const {
        return m_poste->Trouver<PanneauBibliotheque>("frameBibliotheque").FichierSelectionne();
    }
    [[nodiscard]] QStringList Noms() const {
        QStringList noms;
        for (QTreeWidgetItemIterator i(&Arbre()); *i != nullptr; ++i) noms << (*i)->text(0);
        return noms;
    }
    [[nodiscard]] QTreeWidgetItem* Noeud(const char* nom) const {
        for (QTreeWidgetItemIterator i(&Arbre()); *i != nullptr; ++i) {
            if ((*i)->text(0) == QString::fromUtf8(nom)) return *i;
        }
        qFatal("no node %s", nom);
    }
    // Selects without a click: nothing is looked at.
    void Choisir(const char* nom) const {
        const QSignalBlocker muet(&Arbre());
        Arbre().setCurrentItem(Noeud(nom));
    }
    [[nodiscard]] QPoint Place(const char* nom) const {
        QTreeWidgetItem* noeud = Noeud(nom);
        for (QTreeWidgetItem* p = noeud->parent(); p != nullptr; p = p->parent()) p->setExpanded(true);
        Arbre().scrollToItem(noeud);
        return Arbre().visualItemRect(noeud).center();
    }
    void Cliquer(const char* nom) const {
        QTest::mouseClick(Arbre().viewport(), Qt::LeftButton, Qt::NoModifier, Place(nom));
    }
    void DoubleCliquer(const char* nom) const {
        const QPoint place = Place(nom);
        QTest::mouseClick(Arbre().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(Arbre().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }
    void Enregistrer(const std::string& chemin) const {
        m_poste->reponsesFichier.push_back(chemin);
        m_poste->Cliquer<QToolButton>("cmdSauverTS2D");
    }
    void Repondre(std::vector<std::vector<std::string>> reponses) {
        m_demandes.clear();
        InstallerChoisisseurFichier([this, reponses](const DemandeFichier& demande, QWidget*) {
            FichiersChoisis choix;
            if (m_demandes.size() < reponses.size()) choix.chemins = reponses[m_demandes.size()];
            m_demandes.push_back(demande);
            return choix;
        });
    }

    std::unique_ptr<Poste2D> m_poste;
    std::vector<DemandeFichier> m_demandes;
    QByteArray m_corbeilleAvant;
};

QTEST_MAIN(EssaiBibliotheque)
#include "essai_bibliotheque.moc"
