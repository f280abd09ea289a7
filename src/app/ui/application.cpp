// The desktop application: where a fault that nobody took ends in a box, and the words of the window system's
// own dialogs.
#include "app/ui/application.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "ui/fautes_retenues.h"
#include "ui/garde_entrees.h"
#include "ui/icones.h"

#include <QEvent>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>
#include <QWidget>
#include <clocale>

namespace tessarel {

namespace {

// A control by the name it has in the program, else by its kind.
std::string NomDe(const QObject* objet) {
    if (objet == nullptr) return "Tessarel";
    const QString nom = objet->objectName();
    return nom.isEmpty() ? objet->metaObject()->className() : nom.toStdString();
}

std::string FenetreDe(const QObject* objet) {
    const auto* controle = qobject_cast<const QWidget*>(objet);
    return NomDe(controle == nullptr ? nullptr : controle->window());
}

// A fault that left the handler of `receveur`: told at once, or once the machine that is driven stands.
void Recueillir(const std::exception& faute, const QObject* receveur) {
    const OrigineFaute ici = {NomDe(receveur), FenetreDe(receveur)};
    if (RetenirFaute(std::current_exception(), ici)) return;
    const OrigineFaute origine = OrigineDe(std::current_exception(), ici);
    AnnoncerFaute(faute, origine.procedure, origine.fenetre);
    DireLaSuiteDeLaFaute();
}

} // namespace

ApplicationTessarel::ApplicationTessarel(int& argc, char** argv) : QApplication(argc, argv) {
    // The window system took over the user's number format; files are written and read with a point.
    std::setlocale(LC_NUMERIC, "C");
    setApplicationName(QStringLiteral("tessarel"));
    // No display name: the window system would add it to every title, and the titles tell it where it is due.
    setApplicationVersion(QStringLiteral("%1.%2.%3")
                              .arg(TESSAREL_VERSION_MAJEURE)
                              .arg(TESSAREL_VERSION_MINEURE)
                              .arg(TESSAREL_VERSION_REVISION));
    setDesktopFileName(QStringLiteral("tessarel"));
    setWindowIcon(IconeProgramme());
    InstallerFiltreEntrees();
}

bool ApplicationTessarel::notify(QObject* receveur, QEvent* evenement) {
    const QPointer<QObject> encoreLa(receveur); // a handler may end its own control before it fails
    try {
        return QApplication::notify(receveur, evenement);
    } catch (const std::exception& faute) {
        Recueillir(faute, encoreLa);
    } catch (...) {
        Recueillir(FauteInterne("?"), encoreLa);
    }
    return true;
}

void ApplicationTessarel::ParlerLangue(Langue langue) {
    if (langue == Langue::English) return; // what the window system says by itself
    auto* traducteur = new QTranslator(this);
    if (traducteur->load(QStringLiteral("qtbase_fr"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(traducteur);
    } else {
        delete traducteur;
    }
}

void AnnoncerFaute(const std::exception& faute, const std::string& procedure, const std::string& fenetre) {
    const auto* connue = dynamic_cast<const Faute*>(&faute);
    const int numero = static_cast<int>(connue != nullptr ? connue->Numero() : NumeroErreur::ErreurInterne);
    // No line of the source is known at run time: 0, as a routine without line marks has it.
    const std::string texte = TexteRempli(TexteProgramme::ErreurEtape,
                                          {std::to_string(numero), faute.what(), "0", procedure, fenetre}) +
                              "\r\n" + Texte(TexteProgramme::ContactAuteur);
    AfficherCritique(texte, TexteRempli(TexteProgramme::ProcedureErreurTitre, {procedure}));
}

} // namespace tessarel
