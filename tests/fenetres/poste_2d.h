// A user's desk for tests of the 2D window: folders and settings of their own, the default machine, recorded
// boxes, file dialogs answered in the user's place.
#pragma once

#include "app/settings/gestion_ini.h"
#include "app/settings/parametres.h"
#include "app/texts/textes.h"
#include "machine/matieres.h"
#include "machine/table_machine.h"
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"
#include "ui/champ_nombre.h"
#include "ui/choix_fichier.h"
#include "work2d/ui/frmTessarel2D.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace tessarel::essais {

// A rectangle of 100 x 50 mm run counterclockwise from its lower left corner at (0, 0), closed.
inline constexpr const char* RectangleTexte =
    "Rectangle\r\n0.0:0.0\r\n100.0:0.0\r\n100.0:50.0\r\n0.0:50.0\r\n0.0:0.0\r\n";
// The same, then a square of 20 mm.
inline constexpr const char* DeuxTracesTexte =
    "Rectangle\r\n0.0:0.0\r\n100.0:0.0\r\n100.0:50.0\r\n0.0:50.0\r\n0.0:0.0\r\n"
    "Carre\r\n200.0:10.0\r\n220.0:10.0\r\n220.0:30.0\r\n200.0:30.0\r\n200.0:10.0\r\n";

class Poste2D {
public:
    explicit Poste2D(Langue langue = Langue::Francais) {
        ChargerMessages(langue);
        DossiersProgramme = {};
        DossiersProgramme.Documents = dossier.Chemin() + "/";
        DossiersProgramme.Datas = dossier.Chemin();
        DossiersProgramme.MesDecoupes = dossier.Chemin();
        DossiersProgramme.FichierIni = dossier.Fichier("Tessarel.ini");
        EcrireFichierAtomique(DossiersProgramme.FichierIni, "[Parametres]\r\nMatiereUtilisee=Par defaut\r\n");
        Parametres = {};
        ChargerMachine("(Defaut)");
        ChargerBaseMatieres();
        ChoisirMatiere(MatieresMachine.front());
        InstallerChoisisseurFichier([this](const DemandeFichier& demande, QWidget*) {
            demandes.push_back(demande);
            FichiersChoisis choix;
            if (!reponsesFichier.empty()) {
                if (!reponsesFichier.front().empty()) choix.chemins.push_back(reponsesFichier.front());
                reponsesFichier.pop_front();
            }
            return choix;
        });
    }
    ~Poste2D() {
        fenetre.reset();
        InstallerChoisisseurFichier({});
    }
    Poste2D(const Poste2D&) = delete;
    Poste2D& operator=(const Poste2D&) = delete;

    void OuvrirFenetre() {
        fenetre = std::make_unique<frmTessarel2D>();
        fenetre->setWindowState(Qt::WindowNoState);
        fenetre->resize(1280, 800);
        fenetre->show();
        QApplication::setActiveWindow(fenetre.get());
        QVERIFY(QTest::qWaitForWindowActive(fenetre.get()));
    }

    // Writes a file of the user and gives its path.
    std::string Fichier(const std::string& nom, const std::string& contenu) const {
        const std::string chemin = dossier.Fichier(nom);
        EcrireFichierAtomique(chemin, contenu);
        return chemin;
    }

    template <typename Controle>
    Controle& Trouver(const char* nom) const {
        auto* controle = fenetre->findChild<Controle*>(QString::fromLatin1(nom));
        if (controle == nullptr) qFatal("no control %s", nom);
        return *controle;
    }
    template <typename Controle>
    void Cliquer(const char* nom) const {
        Controle& controle = Trouver<Controle>(nom);
        QTest::mouseClick(&controle, Qt::LeftButton, Qt::NoModifier, PointSensible(controle));
    }

    // Types over what a field holds; "\r" is Enter.
    void Saisir(const char* champ, const QString& texte) const {
        auto& saisie = Trouver<ChampNombre>(champ);
        saisie.setFocus();
        saisie.selectAll();
        QTest::keyClicks(&saisie, texte);
    }

    [[nodiscard]] std::size_t NombreBoites() const { return boites.boites.size(); }
    // The last box shown; one without words where none was.
    [[nodiscard]] Boite DerniereBoite() const {
        return boites.boites.empty() ? Boite() : boites.boites.back();
    }

    void Deposer(const std::vector<std::string>& chemins) const {
        QMimeData donnees;
        QList<QUrl> urls;
        for (const std::string& chemin : chemins) urls << QUrl::fromLocalFile(QString::fromStdString(chemin));
        donnees.setUrls(urls);
        QDragEnterEvent entree({400, 300}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(fenetre.get(), &entree);
        if (!entree.isAccepted()) return;
        QDropEvent depot({400, 300}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(fenetre.get(), &depot);
    }

    DossierProvisoire dossier;
    BoitesEnregistrees boites;
    std::vector<DemandeFichier> demandes;    // file dialogs shown
    std::deque<std::string> reponsesFichier; // what is chosen in them; "" cancels, as does no answer
    std::unique_ptr<frmTessarel2D> fenetre;

private:
    // A check box takes clicks on its indicator and its words, not on the room beside them.
    static QPoint PointSensible(const QWidget& controle) {
        return {std::min(12, controle.width() / 2), controle.height() / 2};
    }
};

} // namespace tessarel::essais
