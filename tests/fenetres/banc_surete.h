// A bench for what must hold while a wire is hot: the 2D window with a cut ready, the virtual box, and the
// desktop program's own way of letting events run between two exchanges.
#pragma once

#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_2d.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace tessarel::essais {

inline constexpr const char* TriangleTexte = "Triangle\r\n0.0:0.0\r\n4.0:0.0\r\n2.0:3.0\r\n0.0:0.0\r\n";

// A drawing in its block, the cut page open, the machine in memory 1 of the box.
struct Banc {
    explicit Banc(const char* machine = "(Defaut)", Instant parEchange = std::chrono::milliseconds(100))
        : virtuelle(parEchange), pompe(virtuelle) {
        ChargerMachine(machine);
        virtuelle.Memoriser(TableINI);
        poste.OuvrirFenetre();
        poste.Deposer({poste.Fichier("triangle.txt", TriangleTexte)});
        for (const char* regle : {"chkCentrer_1", "chkCentrer_2"}) poste.Cliquer<QCheckBox>(regle);
        poste.Cliquer<QPushButton>("cmdDecouper");
    }
    void Lancer() {
        poste.Cliquer<QPushButton>("cmdLancerLaDecoupeTS2D");
        virtuelle.SurPompe = {};
    }
    [[nodiscard]] QString Avertissement() const {
        return poste.Trouver<QLabel>("lblAvertissementDecoupe").text();
    }
    // Runs `geste` once in the first turn of a segment of the cut, or as soon as the words begin so.
    void Quand(const QString& debut, std::function<void()> geste) {
        fait = false;
        virtuelle.SurPompe = [this, debut, geste = std::move(geste)] {
            if (fait || !Avertissement().startsWith(debut)) return;
            fait = true;
            depuis = virtuelle.commandes.size();
            geste();
        };
    }
    // Exchanges from the gesture to the first S; the number of all there were where none was sent.
    [[nodiscard]] std::size_t EchangesAvantArret() const { return virtuelle.EchangesAvantArret(depuis); }
    [[nodiscard]] bool Parti() const { return virtuelle.Compter(CommandeFile, 128) > 0; }
    [[nodiscard]] bool Chaud() const { return virtuelle.boite->Etat().pwmCommande > 0; }
    [[nodiscard]] bool FroidEtImmobile() const {
        return !Chaud() && virtuelle.boite->Etat().file == simulateur::EtatFile::Repos;
    }
    [[nodiscard]] bool Arretee() const {
        return poste.fenetre->Course().arretee && poste.Trouver<QWidget>("pctRepriseDecoupe").isVisible();
    }
    [[nodiscard]] std::vector<QMessageBox*> Alertes() const {
        std::vector<QMessageBox*> visibles;
        for (auto* alerte : poste.fenetre->findChildren<QMessageBox*>(QStringLiteral("alerteInterface")))
            if (alerte->isVisible()) visibles.push_back(alerte);
        return visibles;
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
    PompeDuProgramme pompe;
    bool fait = false;
    std::size_t depuis = 0;
};

inline const QString SEGMENT3 = QStringLiteral("Découpe segment n°3/");

// Closes what opens a loop of its own, so that a test ends; true when there was one.
class FermeurDeMenus {
public:
    FermeurDeMenus() {
        QObject::connect(&m_temps, &QTimer::timeout, &m_temps, [this] {
            while (QWidget* menu = QApplication::activePopupWidget()) {
                ouvert = true;
                if (!menu->close()) break;
            }
        });
        m_temps.start(100);
    }
    bool ouvert = false;

private:
    QTimer m_temps;
};

} // namespace tessarel::essais
