// Every signal that asks for the end, in every state in which the machine moves or the wire is hot: the box's
// own record says that it stands and is cold, and the program ends. The key that suspends changes nothing.
#include "app/ui/application.h"
#include "fenetres/coupe_2d.h"
#include "fenetres/poste_machine.h"
#include "fenetres/poste_manuel.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/frmParametresTables.h"
#include "platform/signaux_fin.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/fin_demandee.h"

#include <QScrollBar>
#include <QTimer>

#include <csignal>
#include <utility>

using namespace tessarel;
using namespace tessarel::essais;
using namespace std::chrono_literals;
using simulateur::EtatFile;

namespace {

constexpr int FinNormale = 0;
constexpr int TropLong = 99; // the program has not ended

// The desktop program's windows before the virtual box, and a user at hand: the drawing is not saved, what is
// told gets its OK.
class Scene : public Coupe {
public:
    explicit Scene(int signal) : Coupe(AvecOrigine()), m_signal(signal) {
        virtuelle.boite->PoserChariots({2 * 1600, 254 * 1600, 0, 254 * 1600});
        InstallerBoitesQt(); // real boxes: one that waits for an answer would hold the end up
        EcouterSignauxDeFin(SecondSigint::Compte, Suspension::Ignoree);
        QObject::connect(poste.fenetre.get(), &frmTessarel2D::ParametrerMachine, poste.fenetre.get(),
                         [this] { frmParametresTables(poste.fenetre.get()).exec(); });
        QObject::connect(poste.fenetre.get(), &frmTessarel2D::GererMatieres, poste.fenetre.get(),
                         [this] { frmD4X_matieres(poste.fenetre.get()).exec(); });
        QObject::connect(&m_utilisateur, &QTimer::timeout, poste.fenetre.get(), [this] { Repondre(); });
        m_utilisateur.start(5);
        poste.fenetre->RafraichirInterface(); // as at the entry
    }

    // Runs the program from `amener`, which brings it to a state, to its end.
    int Vivre(const std::function<void(Scene&)>& amener) {
        const GardienDeFin gardien(nullptr, 10ms);
        QTimer::singleShot(0, poste.fenetre.get(), [this, &amener] {
            amener(*this);
            Apres();
        });
        QTimer trop;
        QObject::connect(&trop, &QTimer::timeout, [] { QCoreApplication::exit(TropLong); });
        trop.start(10'000);
        return QApplication::exec();
    }

    // The signal, once. From here on the machine is slow, so that the run outlasts the look-out.
    void Lever() {
        if (leve) return;
        leve = true;
        chaudAvant = virtuelle.boite->Etat().pwmCommande > 0;
        enMarcheAvant = virtuelle.boite->Etat().file != EtatFile::Repos;
        filait = virtuelle.boite->Etat().file == EtatFile::Remplissage;
        arretsAvant = virtuelle.Compter(CommandeArret, 0);
        departsAvant = virtuelle.Compter(CommandeFile, 128);
        virtuelle.FixerParEchange(Suspendu() ? 200ms : 5ms);
        std::raise(m_signal);
        if (Suspendu()) std::raise(SIGCONT);
    }
    // The same as soon as `moment` holds while a loop lets events run.
    void LeverQuand(std::function<bool()> moment) {
        virtuelle.SurPompe = [this, moment = std::move(moment)] {
            if (!leve && moment()) Lever();
            if (leve && !Suspendu()) QTest::qSleep(1);
            if (leve && SurSuite) SurSuite();
        };
    }
    // While the run shows these words.
    void LeverAuxMots(const QString& mots) {
        LeverQuand([this, mots] { return Avertissement().startsWith(mots); });
    }
    void LeverPendantLeMouvement() {
        LeverQuand([this] { return virtuelle.boite->Etat().ticksFaits > 1000; });
    }
    void OuvrirManuel() {
        poste.Cliquer<QPushButton>("cmdAnnulerDecoupe");
        poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
        poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
        poste.Trouver<QTimer>("TimerClignotement").setInterval(5);
    }
    void Allumer() { poste.Cliquer<QToolButton>("optChauffe_1"); }
    // Opens a window of the machine with this button, and does `suite` in it.
    template <typename Fenetre>
    void DansLaFenetre(const char* bouton, const std::function<void(Fenetre&)>& suite) {
        QTimer::singleShot(0, poste.fenetre.get(), [this, suite] {
            auto* fenetre = poste.fenetre->findChild<Fenetre*>();
            if (fenetre == nullptr) qFatal("the window did not open");
            suite(*fenetre);
            if (Suspendu()) fenetre->close();
        });
        poste.Cliquer<QPushButton>("cmdAnnulerDecoupe");
        poste.Cliquer<QToolButton>(bouton);
    }

    [[nodiscard]] bool Suspendu() const { return m_signal == SIGTSTP; }
    // The run was stopped, not left to its own end, and no other one was started.
    [[nodiscard]] bool ArreteeParLeSignal() const {
        return virtuelle.Compter(CommandeFile, 128) == departsAvant &&
               (filait || virtuelle.Compter(CommandeArret, 0) > arretsAvant);
    }
    [[nodiscard]] bool FroidEtImmobile() const { return FilFroid() && virtuelle.boite->Etat().pwmFil == 0; }

    bool leve = false;
    bool chaudAvant = false;
    bool enMarcheAvant = false;
    bool filait = false; // the queue was being filled
    std::size_t arretsAvant = 0;
    std::size_t departsAvant = 0;
    bool boitesFroides = true;      // what the user was asked was asked beside a cold wire
    bool absent = false;            // nobody answers
    bool attendreCritique = false;  // the signal comes while a critical box stands
    std::function<void()> SurSuite; // in each turn after the signal

private:
    static ReglagesCoupe AvecOrigine() {
        ReglagesCoupe reglages;
        reglages.machine = "QT2d v12";
        return reglages;
    }
    // Nobody asked for the end: the user closes the window in the end.
    void Apres() {
        virtuelle.SurPompe = {};
        SurSuite = {};
        if (!Suspendu()) return;
        if (SignauxDeFinRecus() != 0 || !poste.fenetre->isVisible()) QCoreApplication::exit(TropLong);
        poste.fenetre->close();
    }
    void Repondre() {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr || absent) return;
        if (boite->icon() == QMessageBox::Critical && leve && !Suspendu()) return; // the look-out answers
        if (boite->icon() == QMessageBox::Critical && attendreCritique) {
            if (boite->objectName() == QStringLiteral("alerteInterface")) {
                boite->button(QMessageBox::Ok)->click(); // gives up
                return;
            }
            attendreCritique = false;
            virtuelle.boite->Brancher(true);
            Lever();
            if (!Suspendu()) return;
        } else {
            boitesFroides = boitesFroides && virtuelle.boite->Etat().pwmFil == 0;
        }
        for (const auto bouton : {QMessageBox::No, QMessageBox::Ok})
            if (QAbstractButton* b = boite->button(bouton)) return b->click();
    }

    int m_signal;
    QTimer m_utilisateur;
};

struct Etat {
    const char* nom;
    void (*amener)(Scene&);
    bool chaud;    // when the signal comes
    bool enMarche; // or the queue is being filled
};

const Etat ETATS[] = {
    {"homing",
     [](Scene& s) {
         s.LeverQuand([&s] { return s.virtuelle.boite->Etat().file == EtatFile::EnMarche; });
         s.Lancer();
     },
     false, true},
    {"filling",
     [](Scene& s) {
         // Homing fills the queue for each of its moves: the heating frame tells the cut's own.
         s.LeverQuand([&s] {
             const auto etat = s.virtuelle.boite->Etat();
             return etat.file == EtatFile::Remplissage && etat.salvesEnFile > 2;
         });
         s.Lancer();
     },
     false, true},
    {"heating",
     [](Scene& s) {
         s.LeverAuxMots(QStringLiteral("Chauffe "));
         s.Lancer();
     },
     true, true},
    {"cutting",
     [](Scene& s) {
         s.LeverAuxMots(QStringLiteral("Découpe segment n°4/"));
         s.Lancer();
     },
     true, true},
    {"stopped",
     [](Scene& s) {
         s.Arreter();
         s.Lever();
     },
     false, false},
    {"returning",
     [](Scene& s) {
         s.Arreter();
         s.LeverAuxMots(QStringLiteral("Découpe segment n°2/"));
         s.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
     },
     true, true},
    {"open switch told in the cut",
     [](Scene& s) {
         s.attendreCritique = true;
         s.Quand(QStringLiteral("Découpe segment n°4/"),
                 [&s] { s.virtuelle.boite->FixerCommutateurs({.finCourseForcee = true}); });
         s.Lancer();
     },
     false, false},
    {"wire lit by hand",
     [](Scene& s) {
         s.OuvrirManuel();
         s.Allumer();
         s.virtuelle.Attendre(60s);
         s.Lever();
     },
     true, false},
    {"wire warming up by hand",
     [](Scene& s) {
         s.OuvrirManuel();
         s.Allumer();
         s.Lever();
     },
     true, false},
    {"heat by hand not answered for",
     [](Scene& s) {
         s.OuvrirManuel();
         simulateur::PanneProgrammee panne;
         panne.commande = CommandeChauffe;
         panne.fois = 3;
         s.virtuelle.boite->Programmer(panne);
         s.LeverQuand([&s] { return s.virtuelle.Compter(CommandeChauffe, 1) == 2; });
         s.Allumer();
     },
     true, false},
    {"heat-off by hand given up",
     [](Scene& s) {
         s.OuvrirManuel();
         s.Allumer();
         s.attendreCritique = true;
         s.virtuelle.boite->Brancher(false);
         s.poste.Cliquer<QToolButton>("optChauffe_0");
     },
     true, false},
    {"arrow held with a hot wire",
     [](Scene& s) {
         s.OuvrirManuel();
         s.Allumer();
         auto& fleche = s.poste.Trouver<QToolButton>("optGoManuel_4");
         int tours = 0;
         s.LeverQuand([&tours] { return ++tours >= 20; });
         s.SurSuite = [&] {
             if (s.Suspendu() && tours++ == 30) QTest::mouseRelease(&fleche, Qt::LeftButton);
         };
         s.virtuelle.FixerParEchange(5ms);
         QTest::mousePress(&fleche, Qt::LeftButton);
         QTest::mouseRelease(&fleche, Qt::LeftButton);
     },
     true, true},
    {"test move with a hot wire",
     [](Scene& s) {
         s.DansLaFenetre<frmParametresTables>("cmdParametresMachine", [&s](frmParametresTables& f) {
             Cliquer(f, "optReglagesVersManu_1");
             Cliquer(f, "optChauffeParam_1");
             Controle<ChampNombre>(f, "txtIncrements_0").FixerValeur(50);
             s.LeverPendantLeMouvement();
             Cliquer(f, "cmdGoIncrements");
         });
     },
     true, true},
    {"test heat",
     [](Scene& s) {
         s.DansLaFenetre<frmParametresTables>("cmdParametresMachine", [&s](frmParametresTables& f) {
             Cliquer(f, "optReglagesVersManu_1");
             Cliquer(f, "optChauffeParam_1");
             s.Lever();
         });
     },
     true, false},
    {"slice with a hot wire",
     [](Scene& s) {
         s.DansLaFenetre<frmD4X_matieres>("cmdMatieres", [&s](frmD4X_matieres& f) {
             Controle<QScrollBar>(f, "hscChauffeParam").setValue(60);
             Cliquer(f, "optChauffeMatieres_1");
             s.LeverPendantLeMouvement();
             Cliquer(f, "cmdMvtTranches_0");
         });
     },
     true, true},
    {"heat of the slice test",
     [](Scene& s) {
         s.DansLaFenetre<frmD4X_matieres>("cmdMatieres", [&s](frmD4X_matieres& f) {
             Controle<QScrollBar>(f, "hscChauffeParam").setValue(60);
             Cliquer(f, "optChauffeMatieres_1");
             s.Lever();
         });
     },
     true, false},
};

} // namespace

class EssaiSignaux2D : public QObject {
    Q_OBJECT
private slots:
    void DansChaqueEtat_data();
    void DansChaqueEtat();
    void UnSecondNAttendPasLaReponse();
    void GeleEnPleineDecoupe_data();
    void GeleEnPleineDecoupe();
    void GeleFilChaud_data();
    void GeleFilChaud();
};

void EssaiSignaux2D::DansChaqueEtat_data() {
    QTest::addColumn<int>("rang"); // in ETATS
    QTest::addColumn<int>("signal");
    constexpr std::pair<const char*, int> signaux[] = {{"SIGTERM", SIGTERM},
                                                       {"SIGINT", SIGINT},
                                                       {"SIGHUP", SIGHUP},
                                                       {"SIGQUIT", SIGQUIT},
                                                       {"SIGTSTP", SIGTSTP}};
    for (int rang = 0; rang < int(std::size(ETATS)); ++rang)
        for (const auto& [nom, signal] : signaux)
            QTest::addRow("%s, %s", ETATS[rang].nom, nom) << rang << signal;
}
void EssaiSignaux2D::DansChaqueEtat() {
    QFETCH(int, rang);
    QFETCH(int, signal);
    const Etat& etat = ETATS[rang];
    Scene scene(signal);
    QCOMPARE(scene.Vivre(etat.amener), FinNormale);
    QVERIFY(scene.leve);
    QCOMPARE(scene.chaudAvant, etat.chaud);
    QCOMPARE(scene.enMarcheAvant, etat.enMarche);
    QVERIFY(scene.FroidEtImmobile());
    QVERIFY(scene.boitesFroides);
    if (etat.enMarche && !scene.Suspendu()) QVERIFY(scene.ArreteeParLeSignal());
    QVERIFY(!scene.poste.fenetre->isVisible());
    QVERIFY(!scene.poste.fenetre->Course().enCours && !scene.poste.fenetre->Course().arretee);
    const std::size_t commandes = scene.virtuelle.commandes.size();
    QTest::qWait(30);
    QCOMPARE(scene.virtuelle.commandes.size(), commandes); // nothing talks to the box any more
}

// Nobody answers whether the drawing is to be saved; the wire is cold by then.
void EssaiSignaux2D::UnSecondNAttendPasLaReponse() {
    Scene scene(SIGTERM);
    scene.absent = true;
    QTimer questions;
    bool froid = false;
    int second = 0;
    connect(&questions, &QTimer::timeout, this, [&] {
        if (QApplication::activeModalWidget() == nullptr || second++ > 0) return;
        froid = scene.FroidEtImmobile();
        std::raise(SIGTERM);
    });
    questions.start(5);
    QCOMPARE(scene.Vivre([](Scene& s) {
        s.LeverAuxMots(QStringLiteral("Découpe segment n°4/"));
        s.Lancer();
    }),
             FinNormale);
    QVERIFY(second > 0 && froid);
    QVERIFY(scene.FroidEtImmobile());
}

// Halted and let go again (SIGSTOP, a lid that was closed) the program finds the machine minutes later, which
// has gone on as far as its queue went. A short queue ran dry, and the rest of the cut comes then.
void EssaiSignaux2D::GeleEnPleineDecoupe_data() {
    QTest::addColumn<int>("capacite");
    QTest::addRow("all in the queue") << int(simulateur::CapaciteFileUsuelle);
    QTest::addRow("a queue that runs dry") << 3;
}
void EssaiSignaux2D::GeleEnPleineDecoupe() {
    QFETCH(int, capacite);
    ReglagesCoupe reglages;
    reglages.capaciteFile = static_cast<std::size_t>(capacite);
    Coupe coupe(reglages);
    const auto pas = coupe.PasVoulus();
    coupe.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        QVERIFY(!coupe.FilFroid());
        coupe.virtuelle.Attendre(10min);
    });
    coupe.Lancer();
    coupe.virtuelle.SurPompe = {};
    QVERIFY(coupe.fait);
    QVERIFY(coupe.FilFroid());
    QCOMPARE(int(coupe.virtuelle.boite->Etat().pwmFil), 0);
    QVERIFY(coupe.AuRepos());
    QCOMPARE(coupe.poste.NombreBoites(), std::size_t(1));
    QCOMPARE(coupe.poste.DerniereBoite().titre, std::string("machine disponible"));
    QVERIFY(coupe.virtuelle.boite->Comptes().pas == pas);
    QCOMPARE(coupe.virtuelle.boite->Comptes().famines > 0, capacite == 3);
}

void EssaiSignaux2D::GeleFilChaud_data() {
    QTest::addColumn<bool>("boutonStop");
    QTest::addRow("nothing has happened") << false;
    QTest::addRow("the STOP button meanwhile") << true;
}
void EssaiSignaux2D::GeleFilChaud() {
    QFETCH(bool, boutonStop);
    Manuel manuel;
    manuel.poste.Trouver<QScrollBar>("hscChauffeFilManuel").setValue(60);
    manuel.poste.Cliquer<QToolButton>("optChauffe_1");
    manuel.poste.Trouver<QTimer>("TimerClignotement").setInterval(5);
    manuel.virtuelle.Attendre(10min);
    if (boutonStop) manuel.virtuelle.boite->AppuyerStop();
    const auto& signe = manuel.poste.Trouver<QLabel>("lblFilChaud");
    if (boutonStop) {
        QTRY_VERIFY_WITH_TIMEOUT(signe.isHidden(), 2000);
        QCOMPARE(manuel.poste.Trouver<QLabel>("lblEtatManuel").text(),
                 QStringLiteral("La machine a coupé la chauffe"));
    } else {
        QTest::qWait(60);
        QVERIFY(signe.isVisible());
    }
    QCOMPARE(int(manuel.virtuelle.boite->Etat().pwmFil), boutonStop ? 0 : 153);
}

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EssaiSignaux2D essai;
    return QTest::qExec(&essai, argc, argv);
}
#include "essai_signaux_2d.moc"
