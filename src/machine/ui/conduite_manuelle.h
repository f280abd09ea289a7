// Moves, heat and motors as the windows of this folder drive them: one command at a time, flags for what the
// user wants meanwhile, and the certainty that the wire is cold when a window closes.
#pragma once

#include "app/texts/textes_programme.h"
#include "link/chauffe_manuelle.h"
#include "link/mouvements.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

class QMessageBox;
class QWidget;

namespace tessarel {

class GardeEntrees;

// How the end of a move is told in one line.
TexteProgramme MotDeFin(FinMarche fin, CauseFin cause);

class ConduiteManuelle : public QObject {
    Q_OBJECT
public:
    // `fenetre` is what warnings stand over.
    explicit ConduiteManuelle(QWidget* fenetre);

    // A wire that is on and stands is put out when a box or a dialog comes before its window: behind it
    // nobody could.
    bool eventFilter(QObject* objet, QEvent* evenement) override;

    // What stays open to mouse and keys while a command is under way: Stop and the heat. Escape is Stop.
    void PermettreToujours(std::vector<const QWidget*> controles);

    // Runs one move and tells the end that is not the user's own doing; returns at its end. After any
    // end but that of the move itself, the heat is switched off and confirmed. Nothing starts while
    // another command is under way.
    struct Resultat {
        FinMarche Fin = FinMarche::Impossible;
        CauseFin Cause = CauseFin::Aucune;
        PasAxes Faits = {}; // steps done, by Axe
    };
    Resultat Mouvoir(const PasAxes& pas, const VitessesSalve& vitesses);
    // Stops the move that runs, or gives up the heat that is being asked for.
    void DemanderArret();
    // Switches the motors off; a move that runs is stopped first.
    void CouperLesMoteurs();
    // Motors kept under current, or back to what the machine says. False, with nothing sent, while another
    // command is under way.
    bool TensionPermanente(bool permanente);

    // Heat on: looks at the box's switches first, with their boxes. True when the box confirmed, when the
    // wire is on already, and when a heat-off asked during the move that runs could be taken back.
    bool Chauffer(double pourcent);
    // Another heat while the wire is on; while a move runs it goes out between two of its exchanges. Does
    // nothing once the heat is to be switched off: a bar that is touched must not light the wire again.
    void ChangerChauffe(double pourcent);
    // Heat off, repeated until it is confirmed; the user is warned when that takes long and may give up,
    // which ends in a loud box. True when the wire is known to be cold.
    bool Couper();
    // The same, only where the wire may be hot.
    bool CouperSiChaud();

    [[nodiscard]] bool EnMouvement() const { return m_enMouvement; }
    [[nodiscard]] bool Occupee() const { return m_fil.occupee; }
    [[nodiscard]] bool Chaude() const { return m_fil.chaude; }
    // On, or a heat-off was given up.
    [[nodiscard]] bool PeutEtreChaude() const { return m_fil.chaude || m_fil.incertaine; }

signals:
    void DebutMouvement();
    void Avance(double fraction);
    void FinMouvement();
    void ChauffeChangee(bool chaude);
    // A heat is being asked for from here on, or not any more: the box may be slow to answer.
    void ChauffeDemandee(bool enCours);
    // Nobody asked for it here: the machine has switched the heat off by itself, or a heat-off that was given
    // up is confirmed at last.
    void CoupeeSansDemande(TexteProgramme mot);
    // The box is gone and the wire is cold: nothing moves before the link was refreshed.
    void LiaisonPerdue();

private:
    [[nodiscard]] SuiviChauffeManuelle SuiviFil();
    [[nodiscard]] ResultatMouvement FaireEtSuivre(const PasAxes& pas, const VitessesSalve& vitesses);
    // For a command of the heat; nothing where another command keeps the input shut already.
    [[nodiscard]] std::unique_ptr<GardeEntrees> GarderFil();
    // A look at the wire, by the timer that runs while it may be hot.
    void Veiller();
    // Warns over the window while a loop keeps trying; the button of the warning calls `abandonner`.
    void Prevenir(TexteProgramme texte, std::function<void()> abandonner);

    QWidget* m_fenetre;
    QPointer<QMessageBox> m_alerte;
    DemandesMarche m_demandes;
    ChauffeManuelle m_fil;
    bool m_enMouvement = false;
    QTimer TimerVeille{this};
    std::vector<const QWidget*> m_permis;
};

} // namespace tessarel
