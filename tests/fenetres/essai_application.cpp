// The desktop application: faults that nobody took, number format, and the change list.
#include "app/ui/application.h"
#include "app/ui/frmListeModifications.h"
#include "app/ui/libelles_accueil.h"
#include "outils/boites.h"
#include "platform/erreurs.h"

#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <clocale>
#include <new>

using namespace tessarel;
using essais::BoitesEnregistrees;

class EssaiApplication : public QObject {
    Q_OBJECT
private slots:
    void init() { ChargerMessages(Langue::Francais); }

    void UneFauteDansUnBoutonDonneUneBoiteEtLeProgrammeContinue();
    void UneFauteDuneMinuterieAussi();
    void UneExceptionEtrangereAussi();
    void UneFauteApresLaFinDuControleAussi();
    void LesNombresGardentLePoint();
    void LesDialoguesDuSystemeParlentFrancais();
    void LaListeDesModificationsDansLesDeuxLangues();
};

void EssaiApplication::UneFauteDansUnBoutonDonneUneBoiteEtLeProgrammeContinue() {
    const BoitesEnregistrees boites;
    QWidget fenetre;
    fenetre.setObjectName("frmEssai");
    QPushButton bouton(&fenetre);
    bouton.setObjectName("cmdFaute");
    int clics = 0;
    connect(&bouton, &QPushButton::clicked, [&clics] {
        if (++clics == 1) throw FauteDepassement("trop de points");
    });
    fenetre.show();
    QTest::mouseClick(&bouton, Qt::LeftButton);
    QCOMPARE(boites.boites.size(), std::size_t(1));
    const Boite& boite = boites.boites.front();
    QVERIFY(QString::fromStdString(boite.texte)
                .startsWith(
                    "Erreur 6 (trop de points) à la ligne 0, de la procédure cmdFaute de Feuille frmEssai"));
    QVERIFY(QString::fromStdString(boite.texte).contains(TESSAREL_COURRIEL_SUPPORT));
    QCOMPARE(boite.icone, IconeBoite::Critique);
    QCOMPARE(boite.titre, std::string("Procédure de l'erreur :cmdFaute"));
    QTest::mouseClick(&bouton, Qt::LeftButton);
    QCOMPARE(clics, 2);
    QCOMPARE(boites.boites.size(), std::size_t(1));
}

void EssaiApplication::UneFauteDuneMinuterieAussi() {
    const BoitesEnregistrees boites;
    QTimer minuterie;
    minuterie.setObjectName("TimerFilm");
    minuterie.setSingleShot(true);
    connect(&minuterie, &QTimer::timeout,
            [] { throw FauteFichier(NumeroErreur::FichierIntrouvable, "a.dxf", "absent"); });
    minuterie.start(0);
    QTRY_COMPARE(boites.boites.size(), std::size_t(1));
    QVERIFY(QString::fromStdString(boites.boites[0].texte).startsWith("Erreur 53 (a.dxf : absent) "));
    QCOMPARE(boites.boites[0].titre, std::string("Procédure de l'erreur :TimerFilm"));
}

void EssaiApplication::UneExceptionEtrangereAussi() {
    const BoitesEnregistrees boites;
    QTimer::singleShot(0, [] { throw std::bad_alloc(); });
    QTRY_COMPARE(boites.boites.size(), std::size_t(1));
    QVERIFY(QString::fromStdString(boites.boites[0].texte).startsWith("Erreur 51 ("));
    QTimer::singleShot(0, [] { throw 3; });
    QTRY_COMPARE(boites.boites.size(), std::size_t(2));
    QVERIFY(QString::fromStdString(boites.boites[1].texte).startsWith("Erreur 51 ("));
}

void EssaiApplication::UneFauteApresLaFinDuControleAussi() {
    const BoitesEnregistrees boites;
    auto* minuterie = new QTimer;
    connect(minuterie, &QTimer::timeout, [minuterie] {
        delete minuterie;
        throw FauteDepassement("trop tard");
    });
    minuterie->start(0);
    QTRY_COMPARE(boites.boites.size(), std::size_t(1));
    QVERIFY(QString::fromStdString(boites.boites[0].texte).startsWith("Erreur 6 (trop tard) "));
}

void EssaiApplication::LesNombresGardentLePoint() {
    QCOMPARE(QByteArray(std::setlocale(LC_NUMERIC, nullptr)), QByteArray("C"));
}

void EssaiApplication::LesDialoguesDuSystemeParlentFrancais() {
    auto* application = qobject_cast<ApplicationTessarel*>(QCoreApplication::instance());
    application->ParlerLangue(Langue::English);
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Cancel"));
    if (!QFile::exists(QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                       QStringLiteral("/qtbase_fr.qm"))) {
        QSKIP("the window system has no French here");
    }
    application->ParlerLangue(Langue::Francais);
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
}

void EssaiApplication::LaListeDesModificationsDansLesDeuxLangues() {
    frmListeModifications fr(Langue::Francais);
    for (const std::string& defaut : DefautsLibelles(fr, LibellesListeModifications())) QFAIL(defaut.c_str());
    QCOMPARE(fr.findChild<QLabel*>("lblEntete")->text(),
             QStringLiteral("Prenez le temps de lire les dernières modifications,\n"
                            "cela peut affecter des fonctions que vous avez l'habitude d'utiliser."));
    const QString version = QStringLiteral("%1.%2.%3")
                                .arg(TESSAREL_VERSION_MAJEURE)
                                .arg(TESSAREL_VERSION_MINEURE)
                                .arg(TESSAREL_VERSION_REVISION);
    const QString texteFr = fr.findChild<QTextBrowser*>("txtModifications")->toPlainText();
    QVERIFY(texteFr.contains(version));
    QVERIFY(texteFr.contains(QStringLiteral("dessins")));
    frmListeModifications en(Langue::English);
    const QString texteEn = en.findChild<QTextBrowser*>("txtModifications")->toPlainText();
    QVERIFY(texteEn.contains(version));
    QVERIFY(texteEn.contains(QStringLiteral("drawing")));
    // One heading for each version, the same ones in both languages.
    QCOMPARE(ListeModifications(Langue::English).count("## "),
             ListeModifications(Langue::Francais).count("## "));
}

int main(int argc, char** argv) {
    ApplicationTessarel application(argc, argv);
    EssaiApplication essai;
    return QTest::qExec(&essai, argc, argv);
}

#include "essai_application.moc"
