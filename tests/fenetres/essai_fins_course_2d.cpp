// The end of the program in each state of a cut: the window closed, a fault in the middle of the run, a
// signal of the system. The wire is cold by the box's own record, or the user was told.
#include "app/ui/application.h"
#include "fenetres/coupe_2d.h"
#include "platform/erreurs.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/fin_demandee.h"

#include <QTimer>

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <string>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

ReglagesCoupe AvecOrigine() {
    ReglagesCoupe reglages;
    reglages.machine = "QT2d v12";
    return reglages;
}

struct Fin : Coupe {
    Fin() : Coupe(AvecOrigine()) { virtuelle.boite->PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600}); }
    // The words of the run in a state that it goes through.
    [[nodiscard]] static QString Mots(const char* etat) {
        if (std::string(etat) == "origine") return TexteAffiche(TextesEtats(EtatOrigine));
        if (std::string(etat) == "chauffe") return QStringLiteral("Chauffe ");
        return QStringLiteral("Découpe segment n°4/");
    }
    [[nodiscard]] std::size_t Boites(const std::string& titre) const {
        return static_cast<std::size_t>(
            std::ranges::count_if(poste.boites.boites, [&](const Boite& b) { return b.titre == titre; }));
    }
    // After the events that a closing leaves behind.
    [[nodiscard]] bool Fermee() const {
        return QTest::qWaitFor([this] { return !poste.fenetre->isVisible(); }, 5000);
    }
};

} // namespace

class EssaiFinsCourse2D : public QObject {
    Q_OBJECT
private slots:
    void FermerEnMarche_data();
    void FermerEnMarche();
    void FermerPendantLeRetour();
    void FermerSansCable();
    void RenoncerAFermerLaisseLArret();
    void FermerPendantLesQuestionsDuDepartNeDemarreRien();
    void UneFauteEnMarche_data();
    void UneFauteEnMarche();
    void UneFauteSansOrigineAutomatique_data();
    void UneFauteSansOrigineAutomatique();
    void UnSignalArreteEtFerme();
};

void EssaiFinsCourse2D::FermerEnMarche_data() {
    QTest::addColumn<QString>("etat");
    QTest::addColumn<QString>("titre");
    QTest::addRow("homing") << "origine"
                            << "Arrêt d'urgence";
    QTest::addRow("heating") << "chauffe"
                             << "Arrêt pendant la chauffe";
    QTest::addRow("cutting") << "decoupe"
                             << "Arrêt dans la zone utile";
}
void EssaiFinsCourse2D::FermerEnMarche() {
    QFETCH(QString, etat);
    QFETCH(QString, titre);
    Fin f;
    f.poste.boites.reponses = {ReponseBoite::Ok, ReponseBoite::Non};
    f.Quand(Fin::Mots(qPrintable(etat)), [&] {
        QVERIFY(!f.poste.fenetre->close()); // the run stops first
        QVERIFY(f.poste.fenetre->isVisible());
    });
    f.Lancer();
    QVERIFY(f.fait && f.FilFroid());
    QCOMPARE(f.poste.boites.boites.front().titre, titre.toStdString());
    f.virtuelle.SurPompe = {};
    QVERIFY(f.Fermee());
    QCOMPARE(f.poste.NombreBoites(), std::size_t(2)); // and whether to save
}

void EssaiFinsCourse2D::FermerPendantLeRetour() {
    Fin f;
    f.Arreter();
    f.poste.boites.reponses = {ReponseBoite::Ok, ReponseBoite::Non};
    f.Quand(QStringLiteral("Découpe segment n°2/"), [&] { QVERIFY(!f.poste.fenetre->close()); });
    f.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(f.fait && f.FilFroid());
    QCOMPARE(f.poste.boites.boites.front().titre, std::string("Arrêt dans la zone utile"));
    f.virtuelle.SurPompe = {};
    QVERIFY(f.Fermee());
}

void EssaiFinsCourse2D::FermerSansCable() {
    Fin f;
    f.poste.boites.reponses.assign(8, ReponseBoite::Non);
    f.virtuelle.SurPompe = [&] {
        f.RenoncerSiMuet();
        if (f.fait || !f.Avertissement().startsWith(Fin::Mots("decoupe"))) return;
        f.fait = true;
        f.virtuelle.boite->Brancher(false);
        QVERIFY(!f.poste.fenetre->close());
    };
    f.Lancer();
    QVERIFY(f.fait && f.virtuelle.boite->Etat().pwmCommande > 0);
    QCOMPARE(f.Boites("Arrêt non confirmé"), std::size_t(1));
    QCOMPARE(f.Boites("Problème de communication avec la machine"), std::size_t(1));
    QVERIFY(f.Dit(IconeBoite::Critique));
    QVERIFY(f.Fermee());
}

void EssaiFinsCourse2D::RenoncerAFermerLaisseLArret() {
    Fin f;
    f.Arreter();
    f.poste.boites.reponses = {ReponseBoite::Annuler}; // to the question about the work
    QVERIFY(!f.poste.fenetre->close());
    QVERIFY(f.Arretee() && f.FilFroid());
    f.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(f.poste.DerniereBoite().titre, std::string("machine disponible"));
}

// A system that ends the program while the checks before a run are answering.
void EssaiFinsCourse2D::FermerPendantLesQuestionsDuDepartNeDemarreRien() {
    Fin f;
    simulateur::PanneProgrammee panne;
    panne.panne = simulateur::Panne::ReponsePerdue;
    panne.echange = f.virtuelle.boite->Comptes().echanges + 3; // memory 2: told, and nothing hangs on it
    f.virtuelle.boite->Programmer(panne);
    int boites = 0;
    const AfficheurBoite ancien = InstallerAfficheurBoite([&](const Boite&) {
        if (++boites == 1) f.poste.fenetre->close();
        return ReponseBoite::Non;
    });
    f.Lancer();
    const bool fermee = f.Fermee();
    InstallerAfficheurBoite(ancien);
    QVERIFY(boites > 0 && fermee);
    QVERIFY(f.FilFroid());
    QCOMPARE(f.virtuelle.boite->Comptes().salvesAcceptees, std::uint64_t(0));
}

void EssaiFinsCourse2D::UneFauteEnMarche_data() {
    QTest::addColumn<QString>("etat");
    QTest::addRow("homing") << "origine";
    QTest::addRow("heating") << "chauffe";
    QTest::addRow("cutting") << "decoupe";
}
void EssaiFinsCourse2D::UneFauteEnMarche() {
    QFETCH(QString, etat);
    Fin f;
    f.Quand(Fin::Mots(qPrintable(etat)), [] { throw std::runtime_error("the display is gone"); });
    f.Lancer();
    QVERIFY(f.fait);
    QVERIFY(f.FilFroid());
    QCOMPARE(f.poste.NombreBoites(), std::size_t(etat == "decoupe" ? 2 : 1));
    QVERIFY(f.poste.boites.boites[0].icone == IconeBoite::Critique);
    QVERIFY(f.poste.boites.boites[0].texte.find("the display is gone") != std::string::npos);
    QCOMPARE(f.Boites("Arrêt dans la zone utile"), std::size_t(etat == "decoupe" ? 1 : 0));
    QVERIFY(f.AuRepos());
    f.virtuelle.SurPompe = {};
    f.virtuelle.boite->PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600});
    f.Lancer();
    QCOMPARE(f.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiFinsCourse2D::UneFauteSansOrigineAutomatique_data() {
    QTest::addColumn<QByteArray>("suite"); // of a stop; else the cut itself
    QTest::addColumn<QString>("mots");
    QTest::addColumn<bool>("ailleurs"); // the wire stands on its way
    QTest::addColumn<int>("attente");   // seconds that the handler takes before it fails
    QTest::addRow("heating") << QByteArray() << "Chauffe " << false << 0;
    QTest::addRow("held up past the heating") << QByteArray() << "Chauffe 1/" << true << 3;
    QTest::addRow("cutting") << QByteArray() << "Découpe segment n°2/" << true << 0;
    QTest::addRow("heating for the rest") << QByteArray("cmdRepriseDecoupe") << "Chauffe " << true << 0;
    QTest::addRow("heating for the return")
        << QByteArray("cmdLancerRetourApresStop") << "Chauffe " << true << 0;
    QTest::addRow("returning") << QByteArray("cmdLancerRetourApresStop") << "Découpe segment n°2/" << true
                               << 0;
}
// Nothing takes the wire back before the next cut: it would start from where the fault has left it.
void EssaiFinsCourse2D::UneFauteSansOrigineAutomatique() {
    QFETCH(QByteArray, suite);
    QFETCH(QString, mots);
    QFETCH(bool, ailleurs);
    QFETCH(int, attente);
    Coupe c;
    QVERIFY(!TableINI.OrigineAutomatique);
    if (!suite.isEmpty()) c.Arreter();
    c.Quand(mots, [&] {
        c.virtuelle.Attendre(std::chrono::seconds(attente));
        throw std::runtime_error("the display is gone");
    });
    if (suite.isEmpty())
        c.Lancer();
    else
        c.poste.Cliquer<QPushButton>(suite.constData());
    QVERIFY(c.fait && c.FilFroid());
    QCOMPARE(c.virtuelle.boite->Position() != simulateur::PositionPas{}, ailleurs);
    QCOMPARE(c.poste.NombreBoites(), std::size_t(ailleurs ? 2 : 1));
    QVERIFY(c.poste.boites.boites[0].texte.find("the display is gone") != std::string::npos);
    if (ailleurs) {
        QCOMPARE(c.poste.DerniereBoite().texte,
                 std::string("Attention, le fil n'est pas à sa position de repos."));
        QCOMPARE(c.poste.DerniereBoite().titre, std::string("Arrêt dans la zone utile"));
    }
    QVERIFY(c.AuRepos());
    // Told once: the next fault that leaves the wire at rest says nothing of it.
    c.virtuelle.boite->PoserChariots({});
    c.poste.boites.boites.clear();
    c.Quand(QStringLiteral("Chauffe "), [] { throw std::runtime_error("the display is gone"); });
    c.Lancer();
    QVERIFY(c.fait && c.FilFroid());
    QCOMPARE(c.poste.NombreBoites(), std::size_t(1));
}

void EssaiFinsCourse2D::UnSignalArreteEtFerme() {
    EcouterSignauxDeFin(SecondSigint::Compte);
    Fin f;
    InstallerBoitesQt(); // real boxes
    const GardienDeFin gardien;
    // The user answers what is asked: OK, and not to save.
    QStringList dits;
    bool froidALaBoite = true;
    QTimer utilisateur;
    connect(&utilisateur, &QTimer::timeout, this, [&] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr) return;
        dits << boite->windowTitle();
        froidALaBoite = froidALaBoite && f.FilFroid();
        for (const auto bouton : {QMessageBox::No, QMessageBox::Ok})
            if (QAbstractButton* b = boite->button(bouton)) return b->click();
    });
    utilisateur.start(30);
    bool presse = false;
    f.virtuelle.SurPompe = [&] {
        if (!f.Avertissement().startsWith(Fin::Mots("decoupe"))) return;
        if (!presse) std::raise(SIGTERM);
        presse = true;
        f.virtuelle.FixerParEchange(std::chrono::milliseconds(10));
        QTest::qSleep(5); // the segment lasts longer than the look-out waits
    };
    f.Lancer();
    QVERIFY(presse && f.FilFroid() && froidALaBoite);
    QVERIFY(f.virtuelle.boite->Position() != f.virtuelle.boite->PositionOrigine());
    QVERIFY2(dits.contains(QStringLiteral("Arrêt dans la zone utile")), qPrintable(dits.join(u'|')));
    f.virtuelle.SurPompe = {};
    QVERIFY(f.Fermee());
}

int main(int argc, char** argv) {
    // The program's own: it takes the faults that nobody else does.
    ApplicationTessarel application(argc, argv);
    EssaiFinsCourse2D essai;
    return QTest::qExec(&essai, argc, argv);
}
#include "essai_fins_course_2d.moc"
