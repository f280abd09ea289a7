// What the page of a run says while a box stands over it, and at a stop: the end of the way, a Stop that is
// out of reach, the wire cold or not, and which of a cut or a return was stopped.
#include "app/texts/textes_programme.h"
#include "fenetres/coupe_2d.h"
#include "fenetres/poste_manuel.h"
#include "ui/boites_qt.h"

#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

using namespace tessarel;
using namespace tessarel::essais;

namespace {

// Looks at the window whenever a box is shown, before it is answered.
class AChaqueBoite {
public:
    explicit AChaqueBoite(std::function<void(const Boite&)> regarder) : m_regarder(std::move(regarder)) {
        m_ancien = InstallerAfficheurBoite([this](const Boite& boite) {
            m_regarder(boite);
            return m_ancien(boite);
        });
    }
    ~AChaqueBoite() { InstallerAfficheurBoite(std::move(m_ancien)); }
    AChaqueBoite(const AChaqueBoite&) = delete;
    AChaqueBoite& operator=(const AChaqueBoite&) = delete;

private:
    std::function<void(const Boite&)> m_regarder;
    AfficheurBoite m_ancien;
};

struct Page : Coupe {
    using Coupe::Coupe;

    [[nodiscard]] QString Mots(const char* etiquette) const {
        return poste.Trouver<QLabel>(etiquette).text();
    }
    [[nodiscard]] bool Visible(const char* nom) const { return poste.Trouver<QWidget>(nom).isVisible(); }
    [[nodiscard]] bool DitFroid() const {
        return Visible("lblChauffeArret") && !Visible("lblFilArret") &&
               Mots("lblChauffeArret") == TexteAffiche(Texte(TexteProgramme::ChauffeCoupeeALArret));
    }
    [[nodiscard]] bool DitPeutEtreChaud() const {
        return Visible("lblFilArret") && !Visible("lblChauffeArret") &&
               Mots("lblFilArret") == TexteAffiche(Texte(TexteProgramme::SigneFilIncertain)) &&
               poste.Trouver<QTimer>("TimerFilArret").isActive();
    }
    void Manu(bool surManu) const {
        simulateur::Commutateurs commutateurs;
        commutateurs.chauffeManu = surManu;
        virtuelle.boite->FixerCommutateurs(commutateurs);
    }
    // The cut is stopped while the knob of the box heats the wire.
    void ArreterSurManu() {
        Quand(QStringLiteral("Découpe segment n°4/"), [this] {
            Manu(true);
            poste.Cliquer<QPushButton>("cmdSTOP");
        });
        Lancer();
        virtuelle.SurPompe = {};
    }
    // The cut is stopped, and so is its return.
    void ArreterLeRetour() {
        Arreter();
        Quand(TexteAffiche(TitresMessages(190)) + QStringLiteral("2/"),
              [this] { poste.Cliquer<QPushButton>("cmdStopRetourApresReprise"); });
        poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
        virtuelle.SurPompe = {};
    }
};

} // namespace

class EssaiPageCourse2D : public QObject {
    Q_OBJECT
private slots:
    void ALaFinToutEstMontreEtStopEstHorsDePortee();
    void ArreteEnChauffeRienNeChauffePlusAffiche();
    void UneDecoupeArreteeSeReprend();
    void UnRetourArreteSeTermine();
    void UnRetourArreteEnAnglais();
    void UnArretDitLeFilFroid();
    void UnFilPeutEtreChaudLeResteJusquALaConfirmation();
    void AbandonnerEteintLeSigneAvantSaBoite();
    void UneRepriseArreteeEnChauffeDitLeFil();
    void LaLegendeEstSurLaPageDeLaCourse();
    void LaBarreDeChauffeDitLesSecondes();
    void AvantLeOuiLesMouvementsNAnnoncentRien_data();
    void AvantLeOuiLesMouvementsNAnnoncentRien();
};

// Exchanges of 7 ms: most looks at the run fall between two drawings.
void EssaiPageCourse2D::ALaFinToutEstMontreEtStopEstHorsDePortee() {
    ReglagesCoupe reglages;
    reglages.dessin = TriangleTexte;
    reglages.parEchange = std::chrono::milliseconds(7);
    Page page(reglages);
    const auto sommets = page.poste.fenetre->DecoupeMontree().SequenceDecoupe.Points.size();
    bool vue = false;
    const AChaqueBoite boite([&](const Boite& montree) {
        if (montree.titre != "machine disponible") return;
        vue = true;
        QCOMPARE(page.Avertissement(), QStringLiteral("Découpe segment n°%1/%1").arg(sommets));
        const auto& barre = page.poste.Trouver<QProgressBar>("progrbarDecoupe");
        QVERIFY(barre.isVisible());
        QCOMPARE(barre.value(), barre.maximum());
        QCOMPARE(barre.text(), QStringLiteral("Temps restant : 0 s."));
        QVERIFY(!page.poste.Trouver<QPushButton>("cmdSTOP").isEnabled());
        QVERIFY(!page.Visible("optChauffePendantDecoupe"));
    });
    page.Lancer();
    QVERIFY(vue && page.AuRepos());
}

void EssaiPageCourse2D::ArreteEnChauffeRienNeChauffePlusAffiche() {
    Page page;
    bool vue = false;
    const AChaqueBoite boite([&](const Boite& montree) {
        vue = vue || montree.titre == "Arrêt pendant la chauffe";
        QVERIFY(!page.Visible("progrbarChauffe"));
        QCOMPARE(page.Avertissement(), QString());
        QVERIFY(!page.poste.Trouver<QPushButton>("cmdSTOP").isEnabled());
    });
    page.StopQuand(QStringLiteral("Chauffe "));
    page.Lancer();
    QVERIFY(vue && page.AuRepos());
}

void EssaiPageCourse2D::UneDecoupeArreteeSeReprend() {
    Page page;
    page.Arreter();
    QVERIFY(page.Arretee());
    QCOMPARE(page.poste.Trouver<QGroupBox>("pctRepriseDecoupe").title(), QStringLiteral("Découpe arrêtée"));
    const auto& bouton = page.poste.Trouver<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(bouton.text(), QStringLiteral("Reprendre la découpe"));
    QCOMPARE(bouton.toolTip(), QStringLiteral("Chauffer le fil et couper le reste à partir de l'arrêt"));
    QVERIFY(!bouton.icon().isNull());
    QVERIFY(page.poste.Trouver<QPushButton>("cmdLancerRetourApresStop")
                .toolTip()
                .endsWith(QStringLiteral("La découpe ne pourra plus être reprise")));
    // Under a heading: it is not what the machine does now.
    QCOMPARE(page.Mots("lblResumeCourse").section(u'\n', 0, 0),
             QStringLiteral("Réglages de la découpe arrêtée :"));
}

void EssaiPageCourse2D::UnRetourArreteSeTermine() {
    Page page;
    page.ArreterLeRetour();
    QVERIFY(page.fait && page.Arretee());
    const auto& groupe = page.poste.Trouver<QGroupBox>("pctRepriseDecoupe");
    const auto& bouton = page.poste.Trouver<QPushButton>("cmdRepriseDecoupe");
    QCOMPARE(groupe.title(), QStringLiteral("Retour arrêté"));
    QCOMPARE(bouton.text(), QStringLiteral("Terminer le retour"));
    QCOMPARE(bouton.toolTip(), QStringLiteral("Chauffer le fil et finir le retour à partir de l'arrêt"));
    QVERIFY(!page.Mots("lblResumeCourse").contains(QStringLiteral("Retour en cours")));
    QCOMPARE(page.Mots("lblResumeCourse").section(u'\n', 0, 0),
             QStringLiteral("Réglages du retour arrêté :"));
    page.Quand(QStringLiteral("Chauffe "), [&] {
        QCOMPARE(page.Mots("lblResumeCourse").section(u'\n', 0, 0), QStringLiteral("Retour en cours"));
    });
    page.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(page.fait && page.AuRepos());
    // The next cut that is stopped is one.
    page.Arreter();
    QCOMPARE(groupe.title(), QStringLiteral("Découpe arrêtée"));
    QCOMPARE(bouton.text(), QStringLiteral("Reprendre la découpe"));
}

void EssaiPageCourse2D::UnRetourArreteEnAnglais() {
    Page page(Langue::English);
    page.StopQuand(TexteAffiche(TitresMessages(190)) + QStringLiteral("4/"));
    page.Lancer();
    QCOMPARE(page.poste.Trouver<QGroupBox>("pctRepriseDecoupe").title(), QStringLiteral("Cut stopped"));
    QCOMPARE(page.Mots("lblChauffeArret"), QStringLiteral("Heating off, confirmed by the interface."));
    page.Quand(TexteAffiche(TitresMessages(190)) + QStringLiteral("2/"),
               [&] { page.poste.Cliquer<QPushButton>("cmdStopRetourApresReprise"); });
    page.poste.Cliquer<QPushButton>("cmdLancerRetourApresStop");
    QVERIFY(page.fait && page.Arretee());
    QCOMPARE(page.poste.Trouver<QGroupBox>("pctRepriseDecoupe").title(), QStringLiteral("Return stopped"));
    QCOMPARE(page.poste.Trouver<QPushButton>("cmdRepriseDecoupe").text(),
             QStringLiteral("Finish the return"));
}

void EssaiPageCourse2D::UnArretDitLeFilFroid() {
    Page page;
    page.Arreter();
    QVERIFY(page.Arretee() && page.FilFroid());
    QVERIFY(page.DitFroid());
}

// The knob of the box heats the wire: no command puts that out.
void EssaiPageCourse2D::UnFilPeutEtreChaudLeResteJusquALaConfirmation() {
    Page page;
    page.ArreterSurManu();
    QVERIFY(page.fait && page.Arretee() && page.Dit(IconeBoite::Critique));
    QVERIFY(page.DitPeutEtreChaud());
    auto& rafraichir = page.poste.Trouver<QToolButton>("cmdRafraichirUsbTS2D");
    rafraichir.click();
    QVERIFY(page.Arretee() && page.DitPeutEtreChaud()); // it still does
    page.Manu(false);
    rafraichir.click();
    QVERIFY(page.Arretee() && page.DitFroid());
}

void EssaiPageCourse2D::AbandonnerEteintLeSigneAvantSaBoite() {
    Page page;
    page.ArreterSurManu();
    QVERIFY(page.DitPeutEtreChaud());
    page.Manu(false);
    bool vue = false;
    const AChaqueBoite boite([&](const Boite& montree) {
        if (montree.texte != TextesDoubles(43, 1)) return;
        vue = true;
        QVERIFY(page.DitFroid());
    });
    page.poste.Cliquer<QPushButton>("cmdAnnulerReprise");
    QVERIFY(vue);
}

void EssaiPageCourse2D::UneRepriseArreteeEnChauffeDitLeFil() {
    Page page;
    page.Arreter();
    QVERIFY(page.DitFroid());
    page.Quand(QStringLiteral("Chauffe "), [&] {
        page.Manu(true);
        page.poste.Cliquer<QPushButton>("cmdSTOP");
    });
    page.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(page.fait && page.Arretee());
    QVERIFY(page.DitPeutEtreChaud());
    page.virtuelle.SurPompe = {};
    page.Manu(false);
    page.poste.Cliquer<QPushButton>("cmdRepriseDecoupe");
    QVERIFY(page.AuRepos());
    QVERIFY(!page.poste.Trouver<QTimer>("TimerFilArret").isActive());
}

void EssaiPageCourse2D::LaLegendeEstSurLaPageDeLaCourse() {
    Page page;
    page.Quand(QStringLiteral("Découpe segment n°3/"), [&] {
        const char* mots[] = {"entrée", "découpe", "sortie", "rapide", "déjà coupé", "en cours", "retour"};
        for (int i = 0; i < 7; ++i) {
            const QByteArray rang = QByteArray::number(i);
            QCOMPARE(page.Mots("lblLegendeCourse_" + rang), QString::fromUtf8(mots[i]));
            QVERIFY(page.Visible("imgLegendeCourse_" + rang));
        }
        auto& retour = page.poste.Trouver<QLabel>("imgLegendeCourse_6");
        const QImage image = retour.grab().toImage();
        const auto pixel = [&](double part) {
            return image.pixel(static_cast<int>(image.width() * part), image.height() / 2);
        };
        for (const double tiret : {0.1, 0.5, 0.9}) QCOMPARE(pixel(tiret), 0xffe8590cU); // (232, 89, 12)
        for (const double vide : {0.31, 0.69}) QVERIFY(pixel(vide) != 0xffe8590cU);
    });
    page.Lancer();
    QVERIFY(page.fait);
    QVERIFY(page.Visible("frameLegende") && !page.Visible("frameLegendeCourse"));
}

void EssaiPageCourse2D::LaBarreDeChauffeDitLesSecondes() {
    Page page;
    QStringList vues;
    page.virtuelle.SurPompe = [&] {
        const auto& barre = page.poste.Trouver<QProgressBar>("progrbarChauffe");
        if (barre.isVisible() && (vues.isEmpty() || vues.back() != barre.text())) vues << barre.text();
    };
    page.Lancer();
    QVERIFY(vues.contains(QStringLiteral("Temps restant : 2 s.")) &&
            vues.contains(QStringLiteral("Temps restant : 1 s.")));
}

void EssaiPageCourse2D::AvantLeOuiLesMouvementsNAnnoncentRien_data() {
    QTest::addColumn<QByteArray>("bouton");
    QTest::addColumn<QString>("mots");
    QTest::addRow("rest position") << QByteArray("cmdRetourOrigine") << QStringLiteral("Retour en cours");
    QTest::addRow("storage") << QByteArray("cmdPlierLePortique") << TexteAffiche(TextesEtats(EtatRangement));
    QTest::addRow("X") << QByteArray("optHomeX") << QStringLiteral("Recherche de l'origine");
}
void EssaiPageCourse2D::AvantLeOuiLesMouvementsNAnnoncentRien() {
    QFETCH(QByteArray, bouton);
    QFETCH(QString, mots);
    Manuel manuel("QT2d v12", Langue::Francais);
    const auto dits = [&] { return manuel.poste.Trouver<QLabel>("lblEtatManuel").text(); };
    int questions = 0;
    const AChaqueBoite boite([&](const Boite& montree) {
        if (montree.boutons != BoutonsBoite::OuiNon) return;
        ++questions;
        QCOMPARE(dits(), QString());
        QVERIFY(!manuel.poste.Trouver<QPushButton>("optHomeY").isEnabled()); // grey, all the same
    });
    bool vus = false;
    manuel.virtuelle.SurPompe = [&] { vus = vus || dits() == mots; };
    manuel.poste.boites.reponses = {ReponseBoite::Non};
    manuel.poste.Cliquer<QPushButton>(bouton.constData());
    QCOMPARE(questions, 1);
    QVERIFY(!vus);
    manuel.poste.boites.reponses = {ReponseBoite::Oui};
    manuel.poste.Cliquer<QPushButton>(bouton.constData());
    QCOMPARE(questions, 2);
    QVERIFY(vus);
    QCOMPARE(dits(), QString());
}

QTEST_MAIN(EssaiPageCourse2D)
#include "essai_page_course_2d.moc"
