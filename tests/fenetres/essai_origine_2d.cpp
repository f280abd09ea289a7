// Homing before a cut, from the 2D window: what is said, Stop, failures, and every exchange of it broken in
// turn. The wire is never heated before the origin is found, and the window comes back idle, or cuts.
#include "fenetres/coupe_2d.h"
#include "ui/boites_qt.h"

#include <algorithm>
#include <string>

using namespace tessarel;
using namespace tessarel::essais;
using simulateur::Panne;

namespace {

// 1600 steps/mm, the origin at the top at Y 256 mm, switches 1 mm beyond it: a switch is left by the step
// that brings the axis back to its border or before it; back-off steps of 0.1 mm, and one more once it is
// left.
constexpr std::int64_t ParMm = 1600;
constexpr std::int64_t BordX = -ParMm;
constexpr std::int64_t BordY = 257 * ParMm;

ReglagesCoupe AvecOrigine() {
    ReglagesCoupe reglages;
    reglages.machine = "QT2d v12";
    reglages.dessin = TriangleTexte;
    return reglages;
}

struct Origine : Coupe {
    Origine() : Coupe(AvecOrigine()) { Poser(); }
    // Near the switches, so that the search is short; Y2 a little lower than Y1.
    void Poser() {
        virtuelle.boite->PoserChariots({2 * ParMm, 254 * ParMm, 0, 254 * ParMm - 800});
        virtuelle.boite->EffacerTrajet();
        virtuelle.FixerParEchange(std::chrono::milliseconds(40));
    }
    [[nodiscard]] bool EnOrigine() const { return Avertissement() == TexteAffiche(TextesEtats(EtatOrigine)); }
    [[nodiscard]] bool Chauffe() const { return virtuelle.boite->Etat().pwmCommande > 0; }
    // Each axis stands at its origin, 1 mm from where its switch was left.
    [[nodiscard]] bool ALOrigine() const {
        const auto p = virtuelle.boite->Position();
        const auto laissee = [](std::int64_t d) { return d - ParMm >= ParMm / 10 && d - ParMm < ParMm / 5; };
        return laissee(p[AxeX1] - BordX) && laissee(BordY - p[AxeY1]) && laissee(BordY - p[AxeY2]);
    }
    [[nodiscard]] bool MontreLeResume() const {
        const auto& resume = poste.Trouver<QLabel>("lblInformationDecoupe");
        return resume.isVisible() && resume.text().startsWith(QStringLiteral("Vitesse : "));
    }
    [[nodiscard]] bool JamaisChaud() const { return virtuelle.boite->HistoireChauffe().empty(); }
    // Runs `geste` at the n-th turn that the loop of the search gives to events.
    void PendantLOrigine(int n, std::function<void()> geste) {
        fait = false;
        virtuelle.SurPompe = [this, n, geste = std::move(geste), tour = 0]() mutable {
            if (fait || !EnOrigine() || ++tour < n) return;
            fait = true;
            geste();
        };
    }
    // The search failed, or was stopped: told, cold, idle with the summary, ready to begin again.
    void Rendue() {
        QVERIFY(poste.NombreBoites() > 0);
        QVERIFY(JamaisChaud() && FilFroid());
        QVERIFY(AuRepos());
        QVERIFY(MontreLeResume());
        QVERIFY(Avertissement().isEmpty());
        QVERIFY(!virtuelle.boite->Etat().modeOrigine);
    }
    // Everything that was broken is well again, and the carriages stand where they stood.
    void Reparer() {
        virtuelle.SurPompe = {};
        virtuelle.boite->OublierPannes();
        virtuelle.boite->FixerCommutateurs({});
        virtuelle.boite->Brancher(true);
        poste.boites.boites.clear();
        Poser();
    }
};

} // namespace

class EssaiOrigine2D : public QObject {
    Q_OBJECT
private slots:
    void LOrigineEstFaitePuisLaDecoupe();
    void StopAChaqueEchange();
    void LesMachinesArretentLaRecherche_data();
    void LesMachinesArretentLaRecherche();
    void UneBoucleQuiResteOuverteEstDite();
    void LaBoitePerdueEstDite();
    void FermerPendantLOrigine();
    void UnInterrupteurOuvertAvantLeDepart_data();
    void UnInterrupteurOuvertAvantLeDepart();
    void ChaquePanneAChaqueEchange_data();
    void ChaquePanneAChaqueEchange();
};

void EssaiOrigine2D::LOrigineEstFaitePuisLaDecoupe() {
    Origine o;
    bool origine = false;
    simulateur::PositionPas depart = {};
    o.virtuelle.SurPompe = [&] {
        origine = origine || (o.EnOrigine() && o.poste.Trouver<QPushButton>("cmdSTOP").isEnabled());
        if (depart == simulateur::PositionPas{} && o.Chauffe()) {
            QVERIFY(o.ALOrigine());
            depart = o.virtuelle.boite->Position();
            o.virtuelle.boite->EffacerTrajet();
        }
    };
    o.Lancer();
    QVERIFY(origine);
    QCOMPARE(o.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("machine disponible"));
    // The path begins and ends at its own origin.
    QVERIFY(o.virtuelle.boite->Position() == depart);
    QVERIFY(o.FilFroid() && o.AuRepos() && o.MontreLeResume());
}

void EssaiOrigine2D::StopAChaqueEchange() {
    Origine o;
    int n = 0;
    for (bool fini = false; !fini;) {
        o.PendantLOrigine(++n, [&] { o.poste.Cliquer<QPushButton>("cmdSTOP"); });
        const auto geste = o.virtuelle.SurPompe;
        o.virtuelle.SurPompe = [&] {
            geste();
            fini = !o.fait; // the search was over before
            if (o.Chauffe() && fini) o.poste.Cliquer<QPushButton>("cmdSTOP");
        };
        o.Lancer();
        if (fini) break;
        QCOMPARE(o.poste.NombreBoites(), std::size_t(1));
        QCOMPARE(o.poste.DerniereBoite().texte,
                 std::string("Le bouton STOP a été appuyé, opération annulée."));
        QCOMPARE(o.poste.DerniereBoite().titre, std::string("Arrêt d'urgence"));
        o.Rendue();
        if (QTest::currentTestFailed()) return;
        o.Reparer();
    }
    QVERIFY(n > 50);
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
}

void EssaiOrigine2D::LesMachinesArretentLaRecherche_data() {
    QTest::addColumn<int>("panne");
    QTest::addColumn<int>("rangee");
    QTest::addRow("STOP of the machine") << int(Panne::BoutonStop) << 42;
    QTest::addRow("limit switch") << int(Panne::FinCourseOuverte) << 27;
}
void EssaiOrigine2D::LesMachinesArretentLaRecherche() {
    QFETCH(int, panne);
    QFETCH(int, rangee);
    Origine o;
    simulateur::PanneProgrammee reglage;
    reglage.panne = static_cast<Panne>(panne);
    reglage.salve = 1;
    reglage.tick = 2000;
    o.virtuelle.boite->Programmer(reglage);
    o.Lancer();
    QCOMPARE(o.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(o.poste.DerniereBoite().texte, TextesDoubles(rangee, 1));
    QCOMPARE(o.poste.DerniereBoite().titre, TextesDoubles(rangee, 2));
    o.Rendue();
    o.Reparer();
    o.Lancer();
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiOrigine2D::UneBoucleQuiResteOuverteEstDite() {
    Origine o;
    simulateur::PanneProgrammee reglage;
    reglage.panne = Panne::OrigineOuverte;
    reglage.salve = 1;
    reglage.tick = 2000;
    o.virtuelle.boite->Programmer(reglage);
    o.Lancer();
    QCOMPARE(o.poste.NombreBoites(), std::size_t(3));
    for (std::size_t i = 0; i < 2; ++i)
        QCOMPARE(o.poste.boites.boites[i].texte,
                 std::string("Il y a un problème, il semblerait qu'il faille plus de 2mm pour sortir des "
                             "interrupteurs. On va essayer encore..."));
    QCOMPARE(o.poste.DerniereBoite().texte,
             std::string("Les interrupteurs sont encore ouverts. La mise à "
                         "l'origine n'est pas possible, contrôlez la machine."));
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("Recherche de l'origine"));
    o.Rendue();
}

void EssaiOrigine2D::LaBoitePerdueEstDite() {
    Origine o;
    o.PendantLOrigine(20, [&] { o.virtuelle.boite->Brancher(false); });
    const auto geste = o.virtuelle.SurPompe;
    int alertes = 0;
    o.virtuelle.SurPompe = [&] {
        geste();
        if (o.Alerte() != nullptr) ++alertes;
        o.RenoncerSiMuet();
    };
    o.Lancer();
    QVERIFY(o.fait && alertes > 0);
    QVERIFY(o.Dit(IconeBoite::Critique));
    QVERIFY(o.AuRepos() && o.MontreLeResume() && o.JamaisChaud());
    o.Reparer();
    o.Lancer();
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("machine disponible"));
}

void EssaiOrigine2D::FermerPendantLOrigine() {
    Origine o;
    o.poste.boites.reponses = {ReponseBoite::Ok, ReponseBoite::Non};
    o.PendantLOrigine(20, [&] { QVERIFY(!o.poste.fenetre->close()); });
    o.Lancer();
    QVERIFY(o.fait && o.JamaisChaud() && o.FilFroid());
    QCOMPARE(o.poste.boites.boites.front().titre, std::string("Arrêt d'urgence"));
    o.virtuelle.SurPompe = {};
    QTRY_VERIFY(!o.poste.fenetre->isVisible());
    QCOMPARE(o.poste.NombreBoites(), std::size_t(2));
}

void EssaiOrigine2D::UnInterrupteurOuvertAvantLeDepart_data() {
    QTest::addColumn<bool>("limite");
    QTest::addRow("limit switch") << true;
    QTest::addRow("origin switch") << false;
}
void EssaiOrigine2D::UnInterrupteurOuvertAvantLeDepart() {
    QFETCH(bool, limite);
    Origine o;
    simulateur::Commutateurs ouverts;
    ouverts.finCourseForcee = limite;
    ouverts.origineForcee = !limite;
    o.virtuelle.boite->FixerCommutateurs(ouverts);
    const auto avant = o.virtuelle.boite->Position();
    o.Lancer();
    QCOMPARE(o.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(o.poste.DerniereBoite().texte,
             std::string(limite
                             ? "Un interrupteur de fin de course est ouvert, la procédure ne peut pas "
                               "commencer.\r\nDégagez tous les interrupteurs en tournant les tiges filetées "
                               "à la main."
                             : "Un interrupteur d'origine est ouvert, la procédure ne peut pas "
                               "commencer.\r\nDégagez tous les interrupteurs en tournant les tiges filetées "
                               "à la main."));
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("Impossible de faire la procédure."));
    QVERIFY(o.virtuelle.boite->Position() == avant);
    o.Rendue();
}

void EssaiOrigine2D::ChaquePanneAChaqueEchange_data() {
    QTest::addColumn<int>("panne");
    QTest::addRow("command lost") << int(Panne::CommandePerdue);
    QTest::addRow("reply lost") << int(Panne::ReponsePerdue);
    QTest::addRow("reply corrupt") << int(Panne::ReponseCorrompue);
    QTest::addRow("limit switch") << int(Panne::FinCourseOuverte);
    QTest::addRow("STOP of the machine") << int(Panne::BoutonStop);
    QTest::addRow("unplugged") << int(Panne::Debranchement);
}
// Until the wire begins to be heated, where the user stops.
void EssaiOrigine2D::ChaquePanneAChaqueEchange() {
    QFETCH(int, panne);
    Origine o;
    o.poste.fenetre->setUpdatesEnabled(false); // a thousand runs: nobody looks at them
    const auto arreterALaChauffe = [&o] {
        o.RenoncerSiMuet();
        if (!o.Chauffe() || !o.poste.Trouver<QPushButton>("cmdSTOP").isEnabled()) return;
        o.poste.Cliquer<QPushButton>("cmdSTOP");
        QVERIFY(o.ALOrigine());
    };
    o.virtuelle.SurPompe = arreterALaChauffe;
    o.Lancer();
    QCOMPARE(o.poste.DerniereBoite().titre, std::string("Arrêt pendant la chauffe"));
    const auto echanges = o.virtuelle.boite->Comptes().echanges;
    QVERIFY(echanges > 120);
    for (std::uint64_t n = 1; n < echanges; ++n) {
        o.Reparer();
        o.virtuelle.SurPompe = arreterALaChauffe;
        simulateur::PanneProgrammee reglage;
        reglage.panne = static_cast<Panne>(panne);
        reglage.echange = o.virtuelle.boite->Comptes().echanges + n;
        o.virtuelle.boite->Programmer(reglage);
        o.Lancer();
        const std::string ou = "exchange " + std::to_string(n);
        QVERIFY2(o.poste.NombreBoites() > 0, ou.c_str());
        QVERIFY2(o.virtuelle.boite->Etat().pwmCommande == 0 || o.Dit(IconeBoite::Critique), ou.c_str());
        QVERIFY2(o.AuRepos(), ou.c_str());
        if (QTest::currentTestFailed()) QFAIL(ou.c_str());
    }
}

QTEST_MAIN(EssaiOrigine2D)
#include "essai_origine_2d.moc"
