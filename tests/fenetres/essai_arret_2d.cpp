// What the window shows of a cut that was stopped: the part of the segment that is done, the place of the
// wire, which may be hot, and the summary of what was stopped; the same again where the rest, or the way
// back, did not begin to move.
#include "fenetres/coupe_2d.h"
#include "ui/boites_qt.h"
#include "ui/canevas.h"

#include <QProgressBar>

#include <cmath>
#include <optional>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

ReglagesCoupe AvecInterrupteurs() {
    ReglagesCoupe reglages;
    reglages.machine = "Atelier";
    reglages.regler = [](TableMachine& table) { table.SwitchsActifs = true; };
    return reglages;
}

struct Arret : Coupe {
    Arret() : Coupe(AvecInterrupteurs()) {}

    // Where the window says that the wire stands, mm.
    [[nodiscard]] PointDessin Dit() const {
        const PasAxes& pas = poste.fenetre->Course().arret.PositionStop.pas;
        return {MillimetresDePas(TableINI, AxeX1, pas[AxeX1]), MillimetresDePas(TableINI, AxeY1, pas[AxeY1])};
    }
    // Where it does, by the box's own count.
    [[nodiscard]] PointDessin Fil() const {
        const auto pas = virtuelle.boite->Position();
        return {MillimetresDePas(TableINI, AxeX1, static_cast<double>(pas[AxeX1])),
                MillimetresDePas(TableINI, AxeY1, static_cast<double>(pas[AxeY1]))};
    }
    [[nodiscard]] const Dessin& Couche(Canevas::Couche couche) const {
        return poste.Trouver<Canevas>("pctDecoupe").Montre(couche).Liste();
    }
    // The ring on the drawing.
    [[nodiscard]] std::optional<PointDessin> Anneau() const {
        const Dessin& outil = Couche(Canevas::CoucheOutil);
        if (outil.marques.size() != 1) return std::nullopt;
        return outil.marques.front().ou;
    }
    [[nodiscard]] bool AnneauSurLeFil() const {
        const auto anneau = Anneau();
        return anneau && Meme(*anneau, Fil());
    }
    static bool Meme(PointDessin a, PointDessin b) { return std::hypot(a.X - b.X, a.Y - b.Y) < 1e-6; }
    // The orange line ends where the wire stands.
    [[nodiscard]] bool CoupeJusquAuFil() const {
        const Dessin& faits = Couche(Canevas::CoucheSelection);
        return !faits.points.empty() && Meme(faits.points.back(), Fil()) &&
               faits.points.size() == faits.traits.back().premier + faits.traits.back().nombre;
    }
    [[nodiscard]] bool CheminDuRetour() const {
        return std::ranges::any_of(Couche(Canevas::CoucheSelection).traits,
                                   [](const TraitDessin& trait) { return trait.tirets; });
    }
    [[nodiscard]] QString Resume() const { return poste.Trouver<QLabel>("lblResumeCourse").text(); }
    // All that the page and the drawing say.
    struct Vue {
        QString resume;
        QString segment;
        QString avertissement;
        QString barre;
        bool barreMontree = false;
        std::size_t points = 0; // of the orange line
        bool tirets = false;
        bool operator==(const Vue&) const = default;
    };
    [[nodiscard]] Vue CeQuiEstMontre() const {
        const auto& barre = poste.Trouver<QProgressBar>("progrbarDecoupe");
        return {Resume(),          poste.Trouver<QLabel>("lblNumSegmentStop").text(),
                Avertissement(),   barre.text(),
                barre.isVisible(), Couche(Canevas::CoucheSelection).points.size(),
                CheminDuRetour()};
    }
};

} // namespace

class EssaiArret2D : public QObject {
    Q_OBJECT
private slots:
    void LArretMontreOuEstLeFil();
    void PendantQuUneSuiteChauffeLeFilResteMontre_data();
    void PendantQuUneSuiteChauffeLeFilResteMontre();
    void UneSuiteQuiNePartPasRendLArret_data();
    void UneSuiteQuiNePartPasRendLArret();
    void UnRetourArreteResteUnRetour();
    void LaRepriseRepartDuFil();
};

void EssaiArret2D::LArretMontreOuEstLeFil() {
    Arret a;
    a.Arreter();
    QVERIFY(a.Arretee());
    // In the middle of its segment: the vertex before would be another place.
    const auto& sommets = a.poste.fenetre->Course().decoupe.SequenceDecoupe.Points;
    QVERIFY(!Arret::Meme(a.Fil(), {sommets[2].X, sommets[2].Y}));
    QVERIFY(Arret::Meme(a.Dit(), a.Fil()));
    QVERIFY(a.AnneauSurLeFil());
    QVERIFY(a.CoupeJusquAuFil());
    QCOMPARE(a.Couche(Canevas::CoucheSelection).points.size(),
             std::size_t(4)); // three vertices, and the stop
    a.poste.Cliquer<QPushButton>("cmdAnnulerReprise");
    QVERIFY(a.Couche(Canevas::CoucheOutil).marques.empty());
    QVERIFY(a.Couche(Canevas::CoucheSelection).traits.empty());
}

void EssaiArret2D::PendantQuUneSuiteChauffeLeFilResteMontre_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addRow("resume") << QByteArray("cmdRepriseDecoupe");
    QTest::addRow("return") << QByteArray("cmdLancerRetourApresStop");
}
void EssaiArret2D::PendantQuUneSuiteChauffeLeFilResteMontre() {
    QFETCH(QByteArray, bouton);
    Arret a;
    a.Arreter();
    for (const char* mots : {"Mise en température", "Chauffe "}) {
        a.StopQuand(QString::fromUtf8(mots));
        const auto stop = a.virtuelle.SurPompe;
        a.virtuelle.SurPompe = [&] {
            if (a.Avertissement().startsWith(QString::fromUtf8(mots))) {
                QVERIFY(a.AnneauSurLeFil());
                QVERIFY(a.CoupeJusquAuFil());
            }
            if (bouton == "cmdRepriseDecoupe") return stop();
            if (!a.fait && a.Avertissement().startsWith(QString::fromUtf8(mots))) {
                a.fait = true;
                a.poste.Cliquer<QPushButton>("cmdStopRetourApresReprise");
            }
        };
        a.poste.Cliquer<QPushButton>(bouton.constData());
        QVERIFY(a.fait);
        QVERIFY(a.Arretee() && a.FilFroid());
        QVERIFY(a.AnneauSurLeFil());
        QVERIFY(a.CoupeJusquAuFil());
    }
}

void EssaiArret2D::UneSuiteQuiNePartPasRendLArret_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addColumn<bool>("interrupteur"); // else a stop while it heats
    QTest::addRow("resume, stopped") << QByteArray("cmdRepriseDecoupe") << false;
    QTest::addRow("return, stopped") << QByteArray("cmdLancerRetourApresStop") << false;
    QTest::addRow("resume, a switch is open") << QByteArray("cmdRepriseDecoupe") << true;
    QTest::addRow("return, a switch is open") << QByteArray("cmdLancerRetourApresStop") << true;
}
void EssaiArret2D::UneSuiteQuiNePartPasRendLArret() {
    QFETCH(QByteArray, bouton);
    QFETCH(bool, interrupteur);
    Arret a;
    const auto voulus = a.PasVoulus();
    a.Arreter();
    const auto avant = a.CeQuiEstMontre();
    QVERIFY(avant.resume.contains(QStringLiteral("\nVitesse : ")));
    QVERIFY(avant.barreMontree && avant.barre.startsWith(QStringLiteral("Temps restant : ")));
    if (interrupteur) {
        simulateur::Commutateurs commutateurs;
        commutateurs.finCourseForcee = true;
        a.virtuelle.boite->FixerCommutateurs(commutateurs);
    } else {
        a.Quand(QStringLiteral("Chauffe "), [&] {
            const bool retour = bouton == "cmdLancerRetourApresStop";
            QCOMPARE(a.Resume().startsWith(TexteAffiche(TextesEtats(EtatRetour))), retour);
            QCOMPARE(a.CheminDuRetour(), retour);
            a.poste.Cliquer<QPushButton>(retour ? "cmdStopRetourApresReprise" : "cmdSTOP");
        });
    }
    a.poste.Cliquer<QPushButton>(bouton.constData());
    QVERIFY(interrupteur || a.fait);
    a.virtuelle.SurPompe = {};
    QCOMPARE(a.poste.DerniereBoite().titre,
             std::string(interrupteur ? "Impossible de faire la découpe." : "Arrêt pendant la chauffe"));
    QVERIFY(a.Arretee() && a.FilFroid());
    const auto apres = a.CeQuiEstMontre();
    QCOMPARE(apres.resume, avant.resume);
    QCOMPARE(apres.tirets, avant.tirets);
    QCOMPARE(apres.points, avant.points);
    QCOMPARE(apres.barreMontree, avant.barreMontree);
    QVERIFY(apres == avant);
    QVERIFY(a.AnneauSurLeFil());
    // And what follows is the rest of the cut.
    a.virtuelle.boite->FixerCommutateurs({});
    a.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(a.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(a.virtuelle.boite->Comptes().pas == voulus);
    QVERIFY(a.AuRepos());
}

void EssaiArret2D::UnRetourArreteResteUnRetour() {
    Arret a;
    a.Arreter();
    a.Quand(QStringLiteral("Découpe segment n°2/"),
            [&] { a.poste.Cliquer<QPushButton>("cmdStopRetourApresReprise"); });
    a.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(a.fait && a.Arretee());
    const auto avant = a.CeQuiEstMontre();
    QVERIFY(avant.resume.startsWith(QStringLiteral("Réglages du retour arrêté :")) && avant.tirets);
    QVERIFY(a.AnneauSurLeFil());
    // Another return, which does not begin, changes nothing.
    a.Quand(QStringLiteral("Chauffe "), [&] { a.poste.Cliquer<QPushButton>("cmdStopRetourApresReprise"); });
    a.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(a.fait && a.Arretee());
    QVERIFY(a.CeQuiEstMontre() == avant);
    QVERIFY(a.AnneauSurLeFil());
    a.virtuelle.SurPompe = {};
    a.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(a.poste.DerniereBoite().texte, TextesDoubles(44, 1));
    QVERIFY(a.AuRepos());
}

void EssaiArret2D::LaRepriseRepartDuFil() {
    Arret a;
    a.Arreter();
    const PointDessin arret = a.Fil();
    bool vu = false;
    std::size_t faits = 0;
    a.virtuelle.SurPompe = [&] {
        if (!a.Avertissement().startsWith(QStringLiteral("Découpe segment n°"))) return;
        const Dessin& ligne = a.Couche(Canevas::CoucheSelection);
        vu = vu || std::ranges::any_of(ligne.points, [&](PointDessin p) { return Arret::Meme(p, arret); });
        faits = std::max(faits, ligne.points.size());
    };
    a.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    a.virtuelle.SurPompe = {};
    QVERIFY(vu);
    // Every vertex but the last, the stop, and the stop again as the first vertex of the rest.
    QCOMPARE(faits, a.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.size() - 1 + 2);
    QVERIFY(a.Couche(Canevas::CoucheOutil).marques.empty());
}

QTEST_MAIN(EssaiArret2D)
#include "essai_arret_2d.moc"
