// The window kit: boxes, captions, icons, the numeric field, theme, file choice and event pump.
#include "outils/boites.h"
#include "outils/dossiers.h"
#include "platform/fichiers.h"
#include "platform/horloge.h"
#include "platform/pompe.h"
#include "ui/boites_qt.h"
#include "ui/champ_nombre.h"
#include "ui/choix_fichier.h"
#include "ui/icones.h"
#include "ui/libelles.h"
#include "ui/place_libelle.h"
#include "ui/pompe_qt.h"
#include "ui/theme.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyle>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

using namespace tessarel;
using essais::BoitesEnregistrees;

namespace {

// Counts the events of one type that reach a widget.
class GuetteurDeType : public QObject {
public:
    GuetteurDeType(QWidget& widget, QEvent::Type type, int& compte) : m_type(type), m_compte(compte) {
        widget.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == m_type) ++m_compte;
        return false;
    }

private:
    QEvent::Type m_type;
    int& m_compte;
};

// Presses `bouton` of the box that the next AfficherBoite shows, and keeps what it said.
struct Repondeur {
    explicit Repondeur(QMessageBox::StandardButton bouton) {
        QTimer::singleShot(0, [this, bouton] {
            auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (boite == nullptr) return;
            titre = boite->windowTitle();
            texte = boite->text();
            icone = boite->icon();
            for (QAbstractButton* b : boite->buttons()) {
                mots << b->text().remove(u'&');
                sansImages = sansImages && b->icon().isNull();
            }
            mots.sort();
            if (bouton == QMessageBox::NoButton) {
                QTest::keyClick(boite, Qt::Key_Escape);
            } else {
                boite->button(bouton)->click();
            }
        });
    }
    QString titre;
    QString texte;
    QMessageBox::Icon icone = QMessageBox::NoIcon;
    QStringList mots;
    bool sansImages = true;
};

// A window with two fields, the first with the focus.
struct FenetreChamps {
    QWidget fenetre;
    ChampNombre* premier = nullptr;
    ChampNombre* second = nullptr;
    FenetreChamps() {
        auto* pose = new QVBoxLayout(&fenetre);
        pose->addWidget(premier = new ChampNombre);
        pose->addWidget(second = new ChampNombre);
        premier->FixerValeur(12.5);
        fenetre.show();
        QApplication::setActiveWindow(&fenetre);
        premier->setFocus();
        premier->selectAll();
    }
};

// The commonest colour of an icon's lines.
QColor EncreDe(const QIcon& icone) {
    const QImage image = icone.pixmap(48, 48).toImage();
    QHash<QRgb, int> comptes;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() == 255) ++comptes[image.pixel(x, y)];
        }
    }
    QRgb plusFrequente = 0;
    int nombre = 0;
    for (auto it = comptes.begin(); it != comptes.end(); ++it) {
        if (it.value() > nombre) {
            plusFrequente = it.key();
            nombre = it.value();
        }
    }
    return QColor::fromRgb(plusFrequente);
}

} // namespace

class EssaiKit : public QObject {
    Q_OBJECT
private slots:
    void init();

    void UneBoiteDitSonTexteSonTitreEtSonIcone();
    void LesMotsDesBoutonsSuiventLaLangue();
    void EchappRepondAnnulerSinonNonSinonOk();
    void UnTexteDeBoiteNEstPasDuBalisage();

    void UnChampPrendPointEtVirgule();
    void UnChampNePrendPasLesLettres();
    void UnChampSansChangementNeSigneRienEtGardeSaValeur();
    void EntreeValideUneSeuleFois();
    void QuitterLeChampValide();
    void UnNonNombreDonneUneSeuleBoiteEtRestaure();
    void EchappRendLaValeurMontree();

    void LesFiltresTelsQueDits();
    void UnEssaiRepondALaPlaceDeLUtilisateur();
    void LeDialogueMontreLaDemandeEtRendLeChoix();
    void LeDialogueAnnuleNeRendRien();

    void ChaqueIconeSeDessineAvecLEncreDeLaPalette();
    void UneIconeInconnueEstVide();
    void LeProgrammeASonSigne();
    void LesThemesSontLisibles();
    void LeThemeDuSystemeRendSaPalette();

    void LesLibellesSuiventLaLangue();
    void LesDefautsDUneTableSontDits();

    void LaPompeLaissePasserLesEvenements();
    void LaPompeRegardeAChaqueEchangeDUnCable();
    void DesMotsQuiChangentNeDerangentRien();
};

void EssaiKit::init() {
    ChargerMessages(Langue::Francais);
    AppliquerTheme(Theme::Clair);
}

void EssaiKit::UneBoiteDitSonTexteSonTitreEtSonIcone() {
    InstallerBoitesQt();
    const Repondeur repondeur(QMessageBox::Yes);
    const ReponseBoite reponse = AfficherBoite(
        {"Première ligne\r\nSeconde ligne", "Le titre", IconeBoite::Exclamation, BoutonsBoite::OuiNon});
    QCOMPARE(reponse, ReponseBoite::Oui);
    QCOMPARE(repondeur.texte, QStringLiteral("Première ligne\nSeconde ligne"));
    QCOMPARE(repondeur.titre, QStringLiteral("Le titre"));
    QCOMPARE(repondeur.icone, QMessageBox::Warning);
    InstallerAfficheurBoite({});
}

void EssaiKit::LesMotsDesBoutonsSuiventLaLangue() {
    InstallerBoitesQt();
    const Boite boite{"t", "t", IconeBoite::Question, BoutonsBoite::OuiNonAnnuler};
    {
        const Repondeur repondeur(QMessageBox::No);
        QCOMPARE(AfficherBoite(boite), ReponseBoite::Non);
        QCOMPARE(repondeur.mots, QStringList({"Annuler", "Non", "Oui"}));
        QVERIFY(repondeur.sansImages);
    }
    ChargerMessages(Langue::English);
    const Repondeur repondeur(QMessageBox::Cancel);
    QCOMPARE(AfficherBoite(boite), ReponseBoite::Annuler);
    QCOMPARE(repondeur.mots, QStringList({"Cancel", "No", "Yes"}));
    InstallerAfficheurBoite({});
}

void EssaiKit::EchappRepondAnnulerSinonNonSinonOk() {
    InstallerBoitesQt();
    const std::pair<BoutonsBoite, ReponseBoite> cas[] = {
        {BoutonsBoite::OuiNonAnnuler, ReponseBoite::Annuler},
        {BoutonsBoite::OkAnnuler, ReponseBoite::Annuler},
        {BoutonsBoite::OuiNon, ReponseBoite::Non},
        {BoutonsBoite::Ok, ReponseBoite::Ok},
    };
    for (const auto& [boutons, attendue] : cas) {
        const Repondeur repondeur(QMessageBox::NoButton);
        QCOMPARE(AfficherBoite({"t", "t", IconeBoite::Question, boutons}), attendue);
    }
    InstallerAfficheurBoite({});
}

void EssaiKit::UnTexteDeBoiteNEstPasDuBalisage() {
    QMessageBox fenetre;
    PreparerBoite(fenetre, {"<b>dessin</b>.dxf", "t"});
    QCOMPARE(fenetre.textFormat(), Qt::PlainText);
    QCOMPARE(fenetre.text(), QStringLiteral("<b>dessin</b>.dxf"));
}

void EssaiKit::UnChampPrendPointEtVirgule() {
    FenetreChamps f;
    QTest::keyClicks(f.premier, "-3,25");
    QTest::keyClick(f.premier, Qt::Key_Return);
    QCOMPARE(f.premier->Valeur(), -3.25);
    f.premier->selectAll();
    QTest::keyClicks(f.premier, "+4.5");
    QTest::keyClick(f.premier, Qt::Key_Return);
    QCOMPARE(f.premier->Valeur(), 4.5);
    QCOMPARE(f.premier->text(), QStringLiteral("4.50"));
}

void EssaiKit::UnChampNePrendPasLesLettres() {
    FenetreChamps f;
    QTest::keyClicks(f.premier, "1a2 e3%;");
    QCOMPARE(f.premier->text(), QStringLiteral("123"));
    QTest::keyClick(f.premier, Qt::Key_Backspace);
    QCOMPARE(f.premier->text(), QStringLiteral("12"));
}

void EssaiKit::UnChampSansChangementNeSigneRienEtGardeSaValeur() {
    FenetreChamps f;
    f.premier->FixerMasque("##0");
    f.premier->FixerValeur(99.6);
    QCOMPARE(f.premier->text(), QStringLiteral("100"));
    const QSignalSpy signaux(f.premier, &ChampNombre::ValeurSaisie);
    QTest::keyClick(f.premier, Qt::Key_Return);
    f.second->setFocus();
    QCOMPARE(signaux.count(), 0);
    QCOMPARE(f.premier->Valeur(), 99.6);
}

void EssaiKit::EntreeValideUneSeuleFois() {
    FenetreChamps f;
    const QSignalSpy signaux(f.premier, &ChampNombre::ValeurSaisie);
    QTest::keyClicks(f.premier, "7");
    QTest::keyClick(f.premier, Qt::Key_Enter);
    f.second->setFocus();
    QCOMPARE(signaux.count(), 1);
    QCOMPARE(signaux.at(0).at(0).toDouble(), 7.0);
}

void EssaiKit::QuitterLeChampValide() {
    FenetreChamps f;
    const QSignalSpy signaux(f.premier, &ChampNombre::ValeurSaisie);
    QTest::keyClicks(f.premier, "8");
    QTest::keyClick(f.premier, Qt::Key_Tab);
    QCOMPARE(signaux.count(), 1);
    QCOMPARE(f.premier->Valeur(), 8.0);
    QVERIFY(f.second->hasFocus());
}

void EssaiKit::UnNonNombreDonneUneSeuleBoiteEtRestaure() {
    FenetreChamps f;
    const QSignalSpy signaux(f.premier, &ChampNombre::ValeurSaisie);
    // The box takes the focus from the field while it shows, as a window's does.
    int boites = 0;
    const AfficheurBoite ancien = InstallerAfficheurBoite([&](const Boite& boite) {
        ++boites;
        [&] {
            QCOMPARE(boite.texte, std::string("Veuillez entrer un nombre décimal."));
            QCOMPARE(boite.titre, std::string("Erreur de saisie"));
        }();
        f.second->setFocus();
        return ReponseBoite::Ok;
    });
    QTest::keyClicks(f.premier, "1-2");
    QTest::keyClick(f.premier, Qt::Key_Return);
    QCOMPARE(boites, 1);
    QCOMPARE(f.premier->text(), QStringLiteral("12.50"));
    QCOMPARE(f.premier->Valeur(), 12.5);

    f.premier->setFocus();
    f.premier->clear();
    f.premier->setModified(true);
    QTest::keyClick(f.premier, Qt::Key_Tab);
    QCOMPARE(boites, 2);
    QCOMPARE(f.premier->text(), QStringLiteral("12.50"));
    QCOMPARE(signaux.count(), 0);
    InstallerAfficheurBoite(ancien);
}

void EssaiKit::EchappRendLaValeurMontree() {
    FenetreChamps f;
    const BoitesEnregistrees boites;
    QTest::keyClicks(f.premier, "-");
    QTest::keyClick(f.premier, Qt::Key_Escape);
    QCOMPARE(f.premier->text(), QStringLiteral("12.50"));
    f.second->setFocus();
    QVERIFY(boites.boites.empty());
}

void EssaiKit::LesFiltresTelsQueDits() {
    const std::vector<std::string> filtres = FiltresPourDialogue(
        "DAO (*.dxf)|*.dxf|Images(*.bmp; *.jpg)|*.bmp; *.jpg|Tous les fichiers (*.*)|*.*");
    QCOMPARE(filtres.size(), std::size_t(3));
    QCOMPARE(filtres[0], std::string("DAO (*.dxf) (*.dxf *.DXF)"));
    QCOMPARE(filtres[1], std::string("Images(*.bmp; *.jpg) (*.bmp *.BMP *.jpg *.JPG)"));
    QCOMPARE(filtres[2], std::string("Tous les fichiers (*.*) (*)"));
    QVERIFY(FiltresPourDialogue("").empty());
}

void EssaiKit::UnEssaiRepondALaPlaceDeLUtilisateur() {
    std::string titre;
    const ChoisisseurFichier ancien =
        InstallerChoisisseurFichier([&titre](const DemandeFichier& demande, QWidget*) {
            titre = demande.titre;
            return FichiersChoisis{{"/dossier/a.dxf"}, 2};
        });
    DemandeFichier demande;
    demande.titre = "Choisissez";
    const FichiersChoisis choix = ChoisirFichier(demande);
    QCOMPARE(titre, std::string("Choisissez"));
    QCOMPARE(choix.Premier(), std::string("/dossier/a.dxf"));
    QCOMPARE(choix.indiceFiltre, 2);
    QVERIFY(!choix.Annule());
    InstallerChoisisseurFichier([](const DemandeFichier&, QWidget*) { return FichiersChoisis{}; });
    QVERIFY(ChoisirFichier(demande).Annule());
    InstallerChoisisseurFichier(ancien);
}

void EssaiKit::LeDialogueMontreLaDemandeEtRendLeChoix() {
    const essais::DossierProvisoire dossier;
    const std::string chemin = dossier.Fichier("aile.DXF");
    EcrireFichierAtomique(chemin, "0");
    DemandeFichier demande;
    demande.titre = "Choisissez un fichier";
    demande.filtre = "Tessarel (*.tsr)|*.tsr|DAO (*.dxf)|*.dxf";
    demande.indiceFiltre = 2;
    demande.dossier = dossier.Chemin();
    QString titre;
    QString filtre;
    QString ouvert;
    QTimer::singleShot(0, [&] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) return;
        titre = dialogue->windowTitle();
        filtre = dialogue->selectedNameFilter();
        ouvert = dialogue->directory().path();
        dialogue->selectFile(QString::fromStdString(chemin));
        static_cast<QDialog*>(dialogue)->accept();
    });
    const FichiersChoisis choix = ChoisirFichier(demande);
    QCOMPARE(titre, QStringLiteral("Choisissez un fichier"));
    QVERIFY(filtre.startsWith(QStringLiteral("DAO (*.dxf)")));
    QCOMPARE(ouvert.toStdString(), dossier.Chemin());
    QCOMPARE(choix.chemins, std::vector<std::string>{chemin});
    QCOMPARE(choix.indiceFiltre, 2);
}

void EssaiKit::LeDialogueAnnuleNeRendRien() {
    DemandeFichier demande;
    demande.enregistrer = true;
    demande.dossier = "/un/dossier/absent";
    demande.filtre = "Fichier Gcode(*.gcode)|*.gcode";
    QTimer::singleShot(0, [] {
        if (auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            dialogue->reject();
    });
    QVERIFY(ChoisirFichier(demande).Annule());
}

void EssaiKit::ChaqueIconeSeDessineAvecLEncreDeLaPalette() {
    const QStringList noms = NomsIcones();
    QVERIFY(noms.contains(QStringLiteral("ouvrir")));
    for (const Theme theme : {Theme::Clair, Theme::Sombre}) {
        AppliquerTheme(theme);
        const QColor encre = QApplication::palette().color(QPalette::ButtonText);
        const QColor eteinte = QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText);
        QVERIFY(encre != eteinte);
        for (const QString& nom : noms) {
            const QColor trait = EncreDe(Icone(nom));
            QVERIFY2(trait == encre || trait == CouleurFil(),
                     qPrintable(nom + " is drawn in " + trait.name()));
            const QImage grise = Icone(nom).pixmap(QSize(48, 48), QIcon::Disabled).toImage();
            QVERIFY2(EncreDe(QIcon(QPixmap::fromImage(grise))) == eteinte, qPrintable(nom));
        }
    }
}

void EssaiKit::UneIconeInconnueEstVide() {
    QVERIFY(Icone(QStringLiteral("absente")).isNull());
}

void EssaiKit::LeProgrammeASonSigne() {
    const QImage signe = IconeProgramme().pixmap(64, 64).toImage();
    QCOMPARE(signe.size(), QSize(64, 64));
    QCOMPARE(signe.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(signe.pixelColor(32, 8).alpha(), 255);
}

void EssaiKit::LesThemesSontLisibles() {
    const auto clarte = [](const QColor& c) {
        // Relative luminance of the contrast rule of web accessibility.
        const auto lineaire = [](double v) {
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * lineaire(c.redF()) + 0.7152 * lineaire(c.greenF()) + 0.0722 * lineaire(c.blueF());
    };
    const auto contraste = [&clarte](const QColor& a, const QColor& b) {
        const double x = clarte(a) + 0.05;
        const double y = clarte(b) + 0.05;
        return std::max(x, y) / std::min(x, y);
    };
    for (const Theme theme : {Theme::Clair, Theme::Sombre}) {
        AppliquerTheme(theme);
        QCOMPARE(ThemeSombre(), theme == Theme::Sombre);
        const QPalette palette = QApplication::palette();
        const QColor fond = palette.color(QPalette::Window);
        QVERIFY(contraste(palette.color(QPalette::WindowText), fond) >= 7);
        QVERIFY(contraste(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)) >= 7);
        QVERIFY(contraste(CouleurAlerte(), fond) >= 4.5);
        QVERIFY(contraste(CouleurAccord(), fond) >= 4.5);
        QVERIFY(contraste(CouleurFil(), fond) >= 3);
        QVERIFY(contraste(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)) >= 4);
    }
}

void EssaiKit::LeThemeDuSystemeRendSaPalette() {
    AppliquerTheme(Theme::Systeme);
    const QColor fond = QApplication::palette().color(QPalette::Window);
    AppliquerTheme(Theme::Sombre);
    QVERIFY(QApplication::palette().color(QPalette::Window) != fond);
    AppliquerTheme(Theme::Systeme);
    QCOMPARE(QApplication::palette().color(QPalette::Window), fond);
    QCOMPARE(QApplication::style()->name(), QStringLiteral("fusion"));
    QCOMPARE(ThemeCourant(), Theme::Systeme);
}

void EssaiKit::LesLibellesSuiventLaLangue() {
    QWidget fenetre;
    auto* bouton = new QPushButton(&fenetre);
    bouton->setObjectName("cmdOuvrir");
    auto* liste = new QComboBox(&fenetre);
    liste->setObjectName("comboSens");
    static constexpr Libelle table[] = {
        {"", Propriete::Titre, "Essai", "Trial"},
        {"cmdOuvrir", Propriete::Texte, "Ouvrir", "Open", "Ctrl+O", "ouvrir"},
        {"cmdOuvrir", Propriete::Bulle, "Ouvre un dessin", "Opens a drawing"},
        {"comboSens", Propriete::Elements, "Avant|Arrière", "Forward|Backward"},
    };
    AppliquerLibelles(fenetre, table, Langue::Francais);
    QCOMPARE(fenetre.windowTitle(), QStringLiteral("Essai"));
    QCOMPARE(bouton->text(), QStringLiteral("Ouvrir"));
    QCOMPARE(bouton->toolTip(), QStringLiteral("Ouvre un dessin (Ctrl+O)"));
    QCOMPARE(bouton->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
    QVERIFY(!bouton->icon().isNull());
    liste->setCurrentIndex(1);
    AppliquerLibelles(fenetre, table, Langue::English);
    QCOMPARE(bouton->text(), QStringLiteral("Open"));
    QCOMPARE(liste->count(), 2);
    QCOMPARE(liste->currentText(), QStringLiteral("Backward"));
    QVERIFY(DefautsLibelles(fenetre, table).empty());
}

void EssaiKit::LesDefautsDUneTableSontDits() {
    QWidget fenetre;
    (new QPushButton(&fenetre))->setObjectName("cmdA");
    (new QLabel(QStringLiteral("b"), &fenetre))->setObjectName("lblB");
    static constexpr Libelle table[] = {
        {"cmdA", Propriete::Texte, "A", ""},
        {"cmdA", Propriete::Texte, "A", "A", "", "absente"},
        {"cmdC", Propriete::Elements, "un|deux", "one"},
    };
    std::vector<std::string> defauts = DefautsLibelles(fenetre, table);
    std::sort(defauts.begin(), defauts.end());
    const std::vector<std::string> attendus = {"cmdA: no English words", "cmdA: no icon absente",
                                               "cmdA: told twice",       "cmdC: lists of different lengths",
                                               "cmdC: no such control",  "lblB: shows text and has no row"};
    QCOMPARE(defauts, attendus);
}

void EssaiKit::LaPompeLaissePasserLesEvenements() {
    InstallerPompeQt();
    bool passe = false;
    QTimer::singleShot(0, [&passe] { passe = true; });
    QVERIFY(!passe);
    LaisserPasserEvenements();
    QVERIFY(passe);
    InstallerPompe({});
}

void EssaiKit::LaPompeRegardeAChaqueEchangeDUnCable() {
    Instant temps{0};
    const SourceTemps horloge = InstallerHorloge([&temps] { return temps; });
    InstallerPompeQt();
    QTimer battement; // only a look at the window system makes it tick
    int battements = 0;
    int postes = 0;
    connect(&battement, &QTimer::timeout, this, [&battements] { ++battements; });
    battement.start(0);
    for (int i = 0; i < 10; ++i) {
        temps += std::chrono::milliseconds(1);
        LaisserPasserEvenements();
    }
    QCOMPARE(battements, 10);
    // Calls that are microseconds apart share a look; what the program posts passes at each.
    battements = 0;
    for (int i = 0; i < 100; ++i) {
        temps += std::chrono::microseconds(10);
        QMetaObject::invokeMethod(
            this, [&postes] { ++postes; }, Qt::QueuedConnection);
        LaisserPasserEvenements();
        QCOMPARE(postes, i + 1);
    }
    QCOMPARE(battements, 10);
    // A clock that is behind does not stop it.
    temps = Instant(0);
    LaisserPasserEvenements();
    QCOMPARE(battements, 11);
    InstallerPompe({});
    InstallerHorloge(horloge);
}

void EssaiKit::DesMotsQuiChangentNeDerangentRien() {
    QWidget fenetre;
    auto* page = new QVBoxLayout(&fenetre);
    auto* libelle = new QLabel;
    libelle->setWordWrap(true);
    auto* place = new PlaceLibelle(libelle);
    page->addWidget(place);
    page->addStretch(1);
    fenetre.resize(240, 200);
    fenetre.show();
    place->Ecrire(QStringLiteral("segment 1999/30000"));
    QApplication::processEvents();
    const int hauteur = place->height();
    QVERIFY(hauteur >= libelle->fontMetrics().height());
    int demandes = 0;
    GuetteurDeType guetteur(fenetre, QEvent::LayoutRequest, demandes);
    for (int i = 2000; i < 2100; ++i) {
        place->Ecrire(QStringLiteral("segment %1/30000").arg(i));
        QApplication::processEvents();
    }
    QCOMPARE(demandes, 0);
    QCOMPARE(libelle->text(), QStringLiteral("segment 2099/30000"));
    // Words that need more lines get them.
    place->Ecrire(QStringLiteral("des mots bien plus longs, qui ne tiennent pas dans la largeur de la page"));
    QApplication::processEvents();
    QVERIFY(demandes > 0);
    QVERIFY(place->height() > hauteur);
    QCOMPARE(libelle->size(), place->size());
    QVERIFY(libelle->heightForWidth(libelle->width()) <= libelle->height());
}

QTEST_MAIN(EssaiKit)
#include "essai_kit.moc"
