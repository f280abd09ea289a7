// The desktop program as the user starts it, without a screen: a first start, and a start after another.
#include "outils/dossiers.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <csignal>

using tessarel::essais::DossierProvisoire;

namespace {

void Copier(const char* source, const QString& cible) {
    if (!QFile::copy(QString::fromUtf8(source), cible)) qFatal("%s can't be copied", source);
}

// The program with a link library that finds no box, in folders of its own.
struct Poste {
    DossierProvisoire dossier;
    QProcess programme;

    Poste() {
        const QString racine = QString::fromStdString(dossier.Chemin());
        for (const char* nom : {"bin", "maison", "maison/Documents", "session"}) QDir(racine).mkpath(nom);
        QFile::setPermissions(racine + "/session", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Copier(TESSAREL_BIN "/tessarel", racine + "/bin/tessarel");
        Copier(TESSAREL_FAUSSES_BIBLIOTHEQUES "/v16/libZelkoCom.so", racine + "/bin/libZelkoCom.so");
        QProcessEnvironment milieu = QProcessEnvironment::systemEnvironment();
        milieu.insert("HOME", racine + "/maison");
        milieu.insert("XDG_CONFIG_HOME", racine + "/maison/.config");
        milieu.insert("XDG_DATA_HOME", racine + "/maison/.local/share");
        milieu.insert("XDG_RUNTIME_DIR", racine + "/session");
        milieu.insert("QT_QPA_PLATFORM", "offscreen");
        programme.setProcessEnvironment(milieu);
        programme.setProgram(racine + "/bin/tessarel");
    }
    ~Poste() {
        programme.terminate();
        if (!programme.waitForFinished(5000)) programme.kill();
        programme.waitForFinished(5000);
    }
    [[nodiscard]] QString Tessarel() const {
        return QString::fromStdString(dossier.Chemin()) + "/maison/Documents/Tessarel";
    }
};

QByteArray Lire(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

} // namespace

class EssaiProgramme : public QObject {
    Q_OBJECT
private slots:
    void UnPremierDemarrageCreeLesDossiersEtAttendLUtilisateur();
    void UneSecondeInstanceNeToucheARien();
    void UnSignalDeFinFermeProprement_data();
    void UnSignalDeFinFermeProprement();
};

void EssaiProgramme::UnPremierDemarrageCreeLesDossiersEtAttendLUtilisateur() {
    Poste poste;
    poste.programme.start();
    const QString ini = poste.Tessarel() + "/Datas/Tessarel.ini";
    QTRY_VERIFY_WITH_TIMEOUT(Lire(ini).contains("OngletActif=C4X\r\n"), 20000);
    QVERIFY(Lire(ini).contains("MachineUtilisee=(Defaut)\r\n"));
    QVERIFY(QFile::exists(poste.Tessarel() + "/Bibliotheque/cercle.dxf"));
    QVERIFY(QFile::exists(poste.Tessarel() + "/Plugins"));
    // The splash is up and waits: neither ended nor fallen.
    QVERIFY(!poste.programme.waitForFinished(300));
    QCOMPARE(poste.programme.state(), QProcess::Running);
}

void EssaiProgramme::UneSecondeInstanceNeToucheARien() {
    Poste premier;
    premier.programme.start();
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(premier.Tessarel() + "/Datas/Tessarel.ini"), 20000);
    // Another home in the same session: what the second one made would be seen there.
    Poste second;
    QProcessEnvironment milieu = second.programme.processEnvironment();
    milieu.insert("XDG_RUNTIME_DIR", premier.programme.processEnvironment().value("XDG_RUNTIME_DIR"));
    second.programme.setProcessEnvironment(milieu);
    second.programme.start();
    QVERIFY(second.programme.waitForStarted(20000));
    QTest::qWait(1500); // a first start makes its folders in far less
    QVERIFY(!QFile::exists(second.Tessarel()));
    QCOMPARE(premier.programme.state(), QProcess::Running);
}

void EssaiProgramme::UnSignalDeFinFermeProprement_data() {
    QTest::addColumn<int>("signal");
    QTest::addRow("SIGTERM") << SIGTERM;
    QTest::addRow("SIGINT") << SIGINT;
    QTest::addRow("SIGHUP") << SIGHUP;
}
void EssaiProgramme::UnSignalDeFinFermeProprement() {
    QFETCH(int, signal);
    Poste poste;
    poste.programme.start();
    const QString ini = poste.Tessarel() + "/Datas/Tessarel.ini";
    QTRY_VERIFY_WITH_TIMEOUT(Lire(ini).contains("OngletActif=C4X\r\n"), 20000);
    QTest::qWait(500); // the splash is up
    QCOMPARE(::kill(static_cast<pid_t>(poste.programme.processId()), signal), 0);
    QVERIFY(poste.programme.waitForFinished(20000));
    QCOMPARE(poste.programme.exitStatus(), QProcess::NormalExit);
    QCOMPARE(poste.programme.exitCode(), 0);
}

QTEST_GUILESS_MAIN(EssaiProgramme)
#include "essai_programme.moc"
