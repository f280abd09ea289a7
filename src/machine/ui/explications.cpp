// Where the explanation documents lie, and their opening.
#include "machine/ui/explications.h"

#include "app/texts/textes_programme.h"
#include "platform/dialogue.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace tessarel {

namespace {

QString NomDuDocument(Langue langue) {
    return langue == Langue::English ? QStringLiteral("Explications_matiere_En.pdf")
                                     : QStringLiteral("Explications_matiere_Fr.pdf");
}

} // namespace

QString CheminExplicationsMatiere(Langue langue) {
    const QString programme = QCoreApplication::applicationDirPath();
    for (const QString& dossier : {programme, programme + QStringLiteral("/../share/tessarel")}) {
        const QFileInfo document(dossier + u'/' + NomDuDocument(langue));
        if (document.isFile()) return document.canonicalFilePath();
    }
    return {};
}

void OuvrirExplicationsMatiere(Langue langue) {
    const QString chemin = CheminExplicationsMatiere(langue);
    if (chemin.isEmpty()) {
        AfficherExclamation(
            TexteRempli(TexteProgramme::ExplicationsAbsentes, {NomDuDocument(langue).toStdString()}),
            Texte(TexteProgramme::TitreOperationImpossible));
        return;
    }
    QDesktopServices::openUrl(QUrl::fromLocalFile(chemin));
}

} // namespace tessarel
