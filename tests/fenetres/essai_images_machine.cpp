// Pictures of the machine and material windows in both languages, light and dark: laid out without a word cut
// off, and saved for the documentation where a folder is named.
#include "fenetres/images.h"
#include "fenetres/poste_machine.h"
#include "machine/ui/frmD4X_matieres.h"
#include "machine/ui/frmParametresTables.h"
#include "machine/ui/libelles_matieres.h"
#include "machine/ui/libelles_parametres.h"

#include <QTabWidget>

using namespace tessarel;
using namespace tessarel::essais;

class EssaiImagesMachine : public QObject {
    Q_OBJECT
private slots:
    void LesOngletsTiennentEn1280Sur800_data() { RangeesImages(); }
    void LesOngletsTiennentEn1280Sur800() {
        const PosteMachine poste(ReglerRangeeImage());
        frmParametresTables fenetre;
        Exposer(fenetre);
        for (const std::string& defaut : DefautsLibelles(fenetre, LibellesParametresTables()))
            qWarning("%s", defaut.c_str());
        QVERIFY(DefautsLibelles(fenetre, LibellesParametresTables()).empty());
        auto& onglets = Controle<QTabWidget>(fenetre, "ssTabParametres");
        for (int i = 0; i < onglets.count(); ++i) {
            onglets.setCurrentIndex(i);
            QApplication::processEvents();
            QVERIFY2(MotsCoupes(fenetre).isEmpty(), qPrintable(MotsCoupes(fenetre).join(u' ')));
            if (i > 0) continue; // the first page stands for all in the documentation
            QVERIFY(SauverImageRangee(fenetre, QStringLiteral("frmParametresTables-%1-").arg(i + 1)));
        }
        QVERIFY(fenetre.width() <= 1280 && fenetre.height() <= 800);
    }

    void LaFenetreDesMatieresTientEn1280Sur800_data() { LesOngletsTiennentEn1280Sur800_data(); }
    void LaFenetreDesMatieresTientEn1280Sur800() {
        const PosteMachine poste(ReglerRangeeImage());
        frmD4X_matieres fenetre;
        Exposer(fenetre);
        for (const std::string& defaut : DefautsLibelles(fenetre, LibellesMatieres()))
            qWarning("%s", defaut.c_str());
        QVERIFY(DefautsLibelles(fenetre, LibellesMatieres()).empty());
        QVERIFY2(MotsCoupes(fenetre).isEmpty(), qPrintable(MotsCoupes(fenetre).join(u' ')));
        QVERIFY(SauverImageRangee(fenetre, QStringLiteral("frmD4X_matieres-")));
        QVERIFY(fenetre.width() <= 1280 && fenetre.height() <= 800);
    }
};

QTEST_MAIN(EssaiImagesMachine)
#include "essai_images_machine.moc"
