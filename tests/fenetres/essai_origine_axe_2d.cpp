// The origin of one axis from the 2D window, on the virtual machine: what moves, what is asked, what refuses.
#include "fenetres/poste_manuel.h"
#include "link/liste_salves.h"
#include "ui/theme.h"

#include <QLabel>
#include <QSignalSpy>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Away from both switches, at (100, 100) mm; 1600 steps/mm. One motor drives X, two drive Y.
constexpr std::int64_t ParMm = 1600;

struct Origine : Manuel {
    explicit Origine(const char* machine = "QT2d v12", Langue langue = Langue::Francais)
        : Manuel(machine, langue) {
        virtuelle.boite->PoserChariots({100 * ParMm, 100 * ParMm, 0, 100 * ParMm});
        depart = Position();
    }
    void Chercher(const char* nom, ReponseBoite reponse = ReponseBoite::Oui) {
        poste.boites.reponses = {reponse};
        poste.Cliquer<QPushButton>(nom);
    }
    simulateur::PositionPas depart = {};
};

} // namespace

class EssaiOrigineAxe2D : public QObject {
    Q_OBJECT
private slots:
    void init() { AppliquerTheme(Theme::Clair); }

    void OrigineXNeBougeQueX();
    void OrigineYNeBougeQueY();
    void NonNeBougeRien();
    void EnAnglais();
    void SansOrigineAutomatiqueEstRefuse();
    void SansInterfaceEstRefuse();
    void UneAutreTableOuvreSesParametres();
    void UnInterrupteurOuvertEstRefuse();
    void StopArrete();
    void RienDAutreNEstSousLaMainPendantLaRecherche();
};

// Just out of the switch, then the way to the origin: within two back-off steps of 0.1 mm.
void EssaiOrigineAxe2D::OrigineXNeBougeQueX() {
    Origine origine;
    origine.Chercher("optHomeX");
    QCOMPARE(origine.poste.boites.boites.front().texte, std::string("Chercher l'origine de l'axe X ?"));
    QCOMPARE(origine.poste.boites.boites.front().titre, std::string("Validation de sécurité"));
    const auto position = origine.Position();
    const auto attendu = -ParMm + TableINI.PasToOrigine[AxeX1]; // the switch stands 1 mm beyond 0
    QVERIFY(std::abs(position[AxeX1] - attendu) <= 320);
    QCOMPARE(position[AxeY1], origine.depart[AxeY1]);
    QCOMPARE(position[AxeY2], origine.depart[AxeY2]);
    QCOMPARE(origine.poste.DerniereBoite().texte, std::string("L'axe X est à son origine."));
    QCOMPARE(origine.poste.DerniereBoite().titre, std::string("Origine trouvée"));
    QCOMPARE(origine.virtuelle.Compter(CommandeChauffe, 1), std::size_t(0));
    QVERIFY(origine.AuRepos());
}

void EssaiOrigineAxe2D::OrigineYNeBougeQueY() {
    Origine origine;
    origine.Chercher("optHomeY");
    QCOMPARE(origine.poste.boites.boites.front().texte, std::string("Chercher l'origine de l'axe Y ?"));
    const auto position = origine.Position();
    QVERIFY(TableINI.OrigineEnHaut);
    const auto attendu = TableINI.CourseY * ParMm + ParMm - TableINI.PasToOrigine[AxeY1];
    QVERIFY(std::abs(position[AxeY1] - attendu) <= 320);
    QVERIFY(std::abs(position[AxeY2] - attendu) <= 320);
    QCOMPARE(position[AxeX1], origine.depart[AxeX1]);
    QCOMPARE(position[AxeX2], origine.depart[AxeX2]);
    QCOMPARE(origine.poste.DerniereBoite().texte, std::string("L'axe Y est à son origine."));
    QVERIFY(origine.AuRepos());
}

void EssaiOrigineAxe2D::NonNeBougeRien() {
    Origine origine;
    for (const char* nom : {"optHomeX", "optHomeY"}) {
        origine.Chercher(nom, ReponseBoite::Non);
        QVERIFY(origine.Position() == origine.depart);
        QVERIFY(origine.AuRepos());
    }
    QCOMPARE(origine.poste.NombreBoites(), std::size_t(2));
    QCOMPARE(origine.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
}

void EssaiOrigineAxe2D::EnAnglais() {
    Origine origine("QT2d v12", Langue::English);
    origine.Chercher("optHomeX");
    QCOMPARE(origine.poste.boites.boites.front().texte, std::string("Find the origin of the X axis?"));
    QCOMPARE(origine.poste.DerniereBoite().texte, std::string("The X axis is at its origin."));
}

void EssaiOrigineAxe2D::SansOrigineAutomatiqueEstRefuse() {
    Origine origine("(Defaut)");
    QVERIFY(!TableINI.OrigineAutomatique);
    origine.Chercher("optHomeX");
    QCOMPARE(origine.poste.DerniereBoite().texte,
             std::string("Les paramètres de la machine ne permettent pas le retour automatique"));
    QCOMPARE(origine.poste.DerniereBoite().titre, std::string("Opération impossible"));
    QCOMPARE(origine.poste.NombreBoites(), std::size_t(1));
    QVERIFY(origine.Position() == origine.depart);
}

void EssaiOrigineAxe2D::SansInterfaceEstRefuse() {
    Origine origine;
    origine.virtuelle.boite->Brancher(false);
    origine.Chercher("optHomeY");
    QCOMPARE(origine.poste.DerniereBoite().texte, std::string("Pas d'interface détectée"));
    QCOMPARE(origine.poste.NombreBoites(), std::size_t(1));
}

void EssaiOrigineAxe2D::UneAutreTableOuvreSesParametres() {
    Origine origine;
    origine.virtuelle.boite->EcrireMemoires({});
    const QSignalSpy parametres(origine.poste.fenetre.get(), &frmTessarel2D::ParametrerMachine);
    for (const char* nom : {"optHomeX", "cmdRetourOrigine", "cmdPlierLePortique"}) {
        const auto avant = parametres.size();
        origine.Chercher(nom, ReponseBoite::Non);
        QCOMPARE(parametres.size(), avant);
        origine.Chercher(nom, ReponseBoite::Oui);
        QCOMPARE(parametres.size(), avant + 1);
        QVERIFY(
            origine.poste.DerniereBoite().texte.ends_with("Voulez-vous ouvrir la fenêtre de paramétrage?"));
    }
    QVERIFY(origine.Position() == origine.depart);
}

void EssaiOrigineAxe2D::UnInterrupteurOuvertEstRefuse() {
    Origine origine;
    origine.virtuelle.boite->FixerCommutateurs({.finCourseForcee = true});
    origine.Chercher("optHomeX");
    QCOMPARE(
        origine.poste.DerniereBoite().texte,
        std::string("Un interrupteur de fin de course est ouvert, la procédure ne peut pas commencer.\r\n"
                    "Dégagez tous les interrupteurs en tournant les tiges filetées à la main."));
    QCOMPARE(origine.poste.DerniereBoite().titre, std::string("Impossible de faire la procédure."));
    origine.virtuelle.boite->FixerCommutateurs({.origineForcee = true});
    origine.Chercher("optHomeY");
    QCOMPARE(origine.poste.DerniereBoite().texte,
             std::string("Un interrupteur d'origine est ouvert, la procédure ne peut pas commencer.\r\n"
                         "Dégagez tous les interrupteurs en tournant les tiges filetées à la main."));
    QCOMPARE(origine.poste.NombreBoites(), std::size_t(2));
    QVERIFY(origine.Position() == origine.depart);
    QCOMPARE(origine.virtuelle.Compter(CommandeFile, 128), std::size_t(0));
}

void EssaiOrigineAxe2D::StopArrete() {
    Origine origine;
    int tours = 0;
    origine.virtuelle.SurPompe = [&] {
        if (++tours == 40) origine.poste.Cliquer<QPushButton>("optAnnulerHome");
    };
    origine.Chercher("optHomeX");
    QVERIFY(tours >= 40);
    QCOMPARE(origine.poste.DerniereBoite().texte, std::string("L'opération a été annulée."));
    QCOMPARE(origine.poste.DerniereBoite().titre, std::string("Arrêt d'urgence"));
    QVERIFY(origine.Position()[AxeX1] > 0);
    QVERIFY(origine.Position()[AxeX1] < origine.depart[AxeX1]);
    QVERIFY(origine.AuRepos());
}

void EssaiOrigineAxe2D::RienDAutreNEstSousLaMainPendantLaRecherche() {
    Origine origine;
    bool vu = false;
    origine.virtuelle.SurPompe = [&] {
        for (const char* nom :
             {"optHomeX", "optHomeY", "cmdRetourOrigine", "cmdPlierLePortique", "cmdFermerManuel"})
            QVERIFY2(!origine.poste.Trouver<QPushButton>(nom).isEnabled(), nom);
        QVERIFY(!origine.poste.Trouver<QToolButton>("optChauffe_1").isEnabled());
        QVERIFY(!origine.poste.Trouver<QToolButton>("optGoManuel_0").isEnabled());
        QVERIFY(origine.poste.Trouver<QPushButton>("optAnnulerHome").isEnabled());
        const QString dit = origine.poste.Trouver<QLabel>("lblEtatManuel").text();
        vu = vu || !dit.isEmpty(); // as soon as the wire moves, and from then on
        QCOMPARE(dit, vu ? QStringLiteral("Recherche de l'origine") : QString());
    };
    origine.Chercher("optHomeY");
    origine.virtuelle.SurPompe = {};
    QVERIFY(vu);
}

QTEST_MAIN(EssaiOrigineAxe2D)
#include "essai_origine_axe_2d.moc"
