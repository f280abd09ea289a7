// A text field for one number: what may be typed, when it counts, and what happens to a text that is no
// number.
#include "ui/champ_nombre.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"

#include <QKeyEvent>

namespace tessarel {

namespace {

// "Veuillez entrer un nombre décimal."
constexpr int RangeeNombreDecimal = 10;

bool EcritUnCaractere(const QKeyEvent& evenement) {
    const QString texte = evenement.text();
    return !texte.isEmpty() && texte.at(0).isPrint() &&
           (evenement.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
}

bool CaractereDeNombre(QChar c) {
    return (c >= u'0' && c <= u'9') || c == u'.' || c == u',' || c == u'-' || c == u'+';
}

} // namespace

ChampNombre::ChampNombre(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    Montrer();
}

void ChampNombre::FixerMasque(Masque masque) {
    m_masque = masque;
    Montrer();
}

void ChampNombre::FixerValeur(double valeur) {
    m_valeur = valeur;
    Montrer();
}

void ChampNombre::FixerRefus(const std::string& texte, const std::string& titre) {
    m_refusTexte = texte;
    m_refusTitre = titre;
}

void ChampNombre::Montrer() {
    setText(QString::fromStdString(PointVersSeparateur(FormaterNombre(m_valeur, m_masque))));
    setModified(false);
}

bool ChampNombre::Valider() {
    if (!isModified()) return true;
    const std::optional<double> lu = LireDecimal(text().toStdString());
    if (!lu) {
        // Restored before the box shows: the box takes the focus away, and the field then has nothing to
        // refuse.
        Montrer();
        const bool usuel = m_refusTexte.empty();
        AfficherExclamation(usuel ? TextesMessages(RangeeNombreDecimal) : m_refusTexte,
                            usuel ? TitresMessages(RangeeNombreDecimal) : m_refusTitre);
        selectAll();
        return false;
    }
    m_valeur = *lu;
    Montrer();
    emit ValeurSaisie(m_valeur);
    return true;
}

void ChampNombre::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (Valider()) selectAll();
        emit returnPressed();
        evenement->accept(); // else the window's default button is pressed too
        return;
    case Qt::Key_Escape:
        if (isModified()) {
            Montrer();
            selectAll();
            evenement->accept();
            return;
        }
        break;
    default:
        break;
    }
    if (EcritUnCaractere(*evenement) && !CaractereDeNombre(evenement->text().at(0))) {
        evenement->accept();
        return;
    }
    QLineEdit::keyPressEvent(evenement);
}

void ChampNombre::focusOutEvent(QFocusEvent* evenement) {
    QLineEdit::focusOutEvent(evenement);
    // A context menu or another program's window in front is no end of typing.
    if (evenement->reason() != Qt::PopupFocusReason && evenement->reason() != Qt::ActiveWindowFocusReason) {
        Valider();
    }
}

} // namespace tessarel
