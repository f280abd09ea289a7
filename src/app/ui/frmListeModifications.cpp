// The window of the change list.
#include "app/ui/frmListeModifications.h"

#include "app/ui/libelles_accueil.h"
#include "app/ui/ressources.h"
#include "ui/icones.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tessarel {

QString ListeModifications(Langue langue) {
    const QString texte = QString::fromUtf8(
        LireRessource(langue == Langue::English ? ":/tessarel/application/modifications_en.md"
                                                : ":/tessarel/application/modifications_fr.md"));
    QString liste;
    for (const QString& version : texte.split(QStringLiteral("\n## ")).mid(1)) {
        if (!liste.isEmpty()) liste += QStringLiteral("\n---\n\n");
        liste += QStringLiteral("## ") + version.trimmed() + u'\n';
    }
    return liste;
}

frmListeModifications::frmListeModifications(Langue langue, QWidget* parent) : QDialog(parent) {
    setObjectName("frmListeModifications");
    setWindowIcon(IconeProgramme());
    m_lblEntete = new QLabel;
    m_lblEntete->setObjectName("lblEntete");
    m_txtModifications = new QTextBrowser;
    m_txtModifications->setObjectName("txtModifications");
    m_cmdFermer = new QPushButton;
    m_cmdFermer->setObjectName("cmdFermer");
    m_cmdFermer->setDefault(true);
    QObject::connect(m_cmdFermer, &QPushButton::clicked, this, &QDialog::accept);

    auto* pied = new QHBoxLayout;
    pied->addStretch();
    pied->addWidget(m_cmdFermer);
    auto* pose = new QVBoxLayout(this);
    pose->addWidget(m_lblEntete);
    pose->addWidget(m_txtModifications, 1);
    pose->addLayout(pied);

    AppliquerLibelles(*this, LibellesListeModifications(), langue);
    m_txtModifications->setMarkdown(ListeModifications(langue));
    resize(640, 460);
}

} // namespace tessarel
