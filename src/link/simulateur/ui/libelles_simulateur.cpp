// Captions, tool tips and sentences of the virtual box's window, in both languages.
#include "link/simulateur/ui/libelles_simulateur.h"

#include "link/simulateur/journal.h"
#include "platform/raisons.h"

#include <QStringList>

#include <chrono>
#include <cmath>
#include <string_view>

namespace tessarel::simulateur {

namespace {

using enum Propriete;

constexpr Libelle LIBELLES[] = {
    {"", Titre, "Zelko virtuelle", "Virtual Zelko"},

    // The box
    {"frameBoite", Texte, "Interface", "Interface"},
    {"lblEtatBoite", Variable},
    {"lblTable", Variable},
    {"lblClient", Variable},
    {"cmdStopMachine", Texte, "STOP", "STOP", "F12"},
    {"cmdStopMachine", Bulle, "Le bouton STOP de la machine : arrête les mouvements et la chauffe",
     "The machine's STOP button: stops motion and heat"},
    {"chkBranchee", Texte, "Câble USB branché", "USB cable plugged in"},
    {"chkBranchee", Bulle, "Débrancher le câble : l'interface continue toute seule",
     "Pull the cable: the box goes on by itself"},
    {"chkTension", Texte, "Sous tension", "Power on"},
    {"chkTension", Bulle,
     "Couper le courant : chauffe, file et table active sont perdues, les mémoires restent",
     "Cut the power: heat, queue and active table are lost, the memories stay"},

    // Heat
    {"frameChauffe", Texte, "Chauffe du fil", "Wire heat"},
    {"lblChauffe", Texte, "Puissance", "Power"},
    {"lblTemperature", Texte, "Chaleur", "Warmth"},
    {"progrChauffe", Bulle, "Ce que le fil reçoit, en pour cent", "What the wire is given, in percent"},
    {"progrTemperature", Bulle, "La température du fil suit avec un retard",
     "The wire's temperature follows with a delay"},
    {"lblManu", Texte, "PC / MANU", "PC / MANU"},
    {"combManu", Elements, "PC|MANU", "PC|MANU"},
    {"combManu", Bulle, "PC : le programme commande la chauffe. MANU : le bouton ci-dessous",
     "PC: the program rules the heat. MANU: the knob below does"},
    {"lblMarche", Texte, "ON / OFF", "ON / OFF"},
    {"combMarche", Elements, "ON|OFF", "ON|OFF"},
    {"combMarche", Bulle, "OFF : le fil reste froid quoi que dise le programme",
     "OFF: the wire stays cold whatever the program says"},
    {"lblBouton", Texte, "Bouton", "Knob"},
    {"hscBouton", Bulle, "La chauffe quand le commutateur est sur MANU",
     "The heat when the switch stands on MANU"},

    // Queue
    {"frameFile", Texte, "File et salve en cours", "Queue and frame under way"},
    {"lblFile", Texte, "File", "Queue"},
    {"progrFile", Bulle, "Salves en attente", "Frames that wait"},
    {"lblSalve", Variable},
    {"progrSalve", Bulle, "Ticks faits de la salve en cours", "Ticks done of the frame under way"},

    // Switches
    {"frameInterrupteurs", Texte, "Interrupteurs", "Switches"},
    {"lblOrigine", Variable},
    {"chkOrigine", Texte, "Ouvrir la boucle d'origine", "Open the origin loop"},
    {"chkOrigine", Bulle, "Ouvrir la boucle à la main, où que soient les chariots",
     "Open the loop by hand, wherever the carriages are"},
    {"lblFinCourse", Variable},
    {"chkFinCourse", Texte, "Ouvrir la fin de course", "Open the limit loop"},
    {"chkFinCourse", Bulle, "Ouvrir la boucle de fin de course à la main", "Open the limit loop by hand"},

    // Views
    {"lblCote", Texte, "De côté", "From the side"},
    {"lblFace", Texte, "De face", "From the front"},
    {"lblDessus", Texte, "De dessus", "From above"},

    // Carriages and block
    {"frameChariots", Texte, "Chariots, mm", "Carriages, mm"},
    {"lblAxe_0", Texte, "X1", "X1"},
    {"lblAxe_1", Texte, "Y1", "Y1"},
    {"lblAxe_2", Texte, "X2", "X2"},
    {"lblAxe_3", Texte, "Y2", "Y2"},
    {"lblPosition_0", Variable},
    {"lblPosition_1", Variable},
    {"lblPosition_2", Variable},
    {"lblPosition_3", Variable},
    {"lblMoteurs", Variable},
    {"cmdPoserOrigine", Texte, "Ramener à l'origine", "Put at the origin"},
    {"cmdPoserOrigine", Bulle, "Pousser les chariots à la main jusqu'à l'origine",
     "Push the carriages to the origin by hand"},
    {"frameBloc", Texte, "Bloc de mousse, mm", "Foam block, mm"},
    {"lblBloc_0", Texte, "X", "X"},
    {"lblBloc_1", Texte, "Y", "Y"},
    {"lblBloc_2", Texte, "Largeur", "Width"},
    {"lblBloc_3", Texte, "Hauteur", "Height"},
    {"lblBloc_4", Texte, "Z", "Z"},
    {"lblBloc_5", Texte, "Envergure", "Span"},
    {"txtBloc_0", Bulle, "Du bord de la course au bloc, en X",
     "From the edge of the travel to the block, in X"},
    {"txtBloc_1", Bulle, "Du bas de la course au bloc, en Y",
     "From the bottom of the travel to the block, in Y"},
    {"txtBloc_2", Bulle, "Taille du bloc en X", "Size of the block in X"},
    {"txtBloc_3", Bulle, "Taille du bloc en Y", "Size of the block in Y"},
    {"txtBloc_4", Bulle, "Du chariot 1 au bloc, le long du fil",
     "From carriage 1 to the block, along the wire"},
    {"txtBloc_5", Bulle, "Taille du bloc le long du fil", "Size of the block along the wire"},
    {"cmdEffacerTrace", Texte, "Bloc neuf", "New block", "Ctrl+N"},
    {"cmdEffacerTrace", Bulle, "Effacer ce qui a été découpé", "Clear what was cut"},

    // Time
    {"frameTemps", Texte, "Temps", "Time"},
    {"lblFacteur", Texte, "Vitesse", "Speed"},
    {"combFacteur", Bulle, "Le temps de la machine, combien de fois le temps réel",
     "The machine's time, how many times real time"},
    {"lblTemps", Variable},

    // Faults
    {"framePannes", Texte, "Pannes", "Faults"},
    {"combPanne", Elements,
     "Commande perdue|Réponse perdue|Réponse tardive|Réponse corrompue|Réponse coupée|Salve refusée|"
     "Câble débranché|Coupure de courant|Boucle d'origine ouverte|Fin de course ouverte|Bouton STOP|"
     "Chauffe sur MANU|Chauffe sur OFF",
     "Command lost|Reply lost|Reply late|Reply corrupt|Reply cut short|Frame refused|"
     "Cable unplugged|Power cut|Origin loop open|Limit loop open|STOP button|"
     "Heat on MANU|Heat on OFF"},
    {"combPanne", Bulle, "Ce qui doit aller mal", "What is to go wrong"},
    {"combQuand", Elements, "tout de suite|au prochain échange n°|à la salve n°",
     "at once|at exchange number|at frame number"},
    {"combQuand", Bulle, "Quand ; les échanges se comptent à partir de maintenant",
     "When; exchanges are counted from now on"},
    {"txtQuand", Bulle, "Numéro de l'échange ou de la salve", "Number of the exchange or of the frame"},
    {"cmdProgrammer", Texte, "Provoquer", "Make it happen"},
    {"cmdProgrammer", Bulle, "La panne surviendra au moment choisi",
     "The fault will happen at the moment chosen"},
    {"cmdOublier", Texte, "Réparer", "Repair"},
    {"cmdOublier", Bulle, "Oublier les pannes à venir et réparer ce qui est en panne",
     "Forget the faults to come and mend what is broken"},
    {"lblPannes", Variable},

    // Log
    {"lblJournal", Texte, "Journal", "Log"},
    {"chkEchanges", Texte, "Avec les échanges", "With the exchanges"},
    {"chkEchanges", Bulle, "Sans cela, seuls les événements sont montrés",
     "Without it only events are shown"},
    {"cmdEffacerJournal", Bulle, "Vider le journal affiché", "Clear the log that is shown", "", "supprimer"},
    {"txtJournal", Bulle, "Les derniers échanges et événements ; --journal les écrit tous dans un fichier",
     "The last exchanges and events; --journal writes all of them to a file"},
};

QString Axe(std::int64_t axe) {
    constexpr const char* noms[] = {"X1", "Y1", "X2", "Y2"};
    return QString::fromLatin1(axe >= 0 && axe < 4 ? noms[axe] : "?");
}

QString Dire(const char* francais, const char* english) {
    return QString::fromUtf8(SelonLangue(francais, english));
}

QString Pourcent(std::int64_t pwm) {
    constexpr double plein = 255;
    return QString::number(std::lround(100.0 * static_cast<double>(pwm) / plein)) + QStringLiteral(" %");
}

// The caption of a fault, from the table above.
QString MotsPanne(std::int64_t panne) {
    for (const Libelle& l : LIBELLES) {
        if (std::string_view(l.controle) != "combPanne" || l.propriete != Elements) continue;
        return Dire(l.francais, l.english).split(u'|').value(static_cast<int>(panne));
    }
    return {};
}

QString PhraseEvenement(Evenement evenement, std::int64_t valeur) {
    switch (evenement) {
    case Evenement::MiseSousTension:
        return Dire("Mise sous tension", "Power on");
    case Evenement::Depart:
        return Dire("Départ de la liste", "The list starts");
    case Evenement::DebutSalve:
        return Dire("Salve %1", "Frame %1").arg(valeur);
    case Evenement::Famine:
        return Dire("File vide : la machine attend la suite", "Queue empty: the machine waits for more");
    case Evenement::Fin:
        return PhraseFin(static_cast<FinMouvement>(valeur));
    case Evenement::Chauffe:
        return Dire("Chauffe : %1", "Heat: %1").arg(Pourcent(valeur));
    case Evenement::MoteursAllumes:
        return Dire("Moteurs alimentés", "Motors on");
    case Evenement::MoteursEteints:
        return Dire("Moteurs relâchés", "Motors off");
    case Evenement::PanneSurvient:
        return Dire("Panne : %1", "Fault: %1").arg(MotsPanne(valeur));
    case Evenement::PanneCesse:
        return Dire("Fin de panne : %1", "Fault over: %1").arg(MotsPanne(valeur));
    case Evenement::CommandeInconnue:
        return Dire("Commande inconnue : octet %1", "Unknown command: byte %1").arg(valeur);
    case Evenement::CommandeHorsDePropos:
        return Dire("Commande hors de propos : %1", "Command out of place: %1")
            .arg(QChar(static_cast<char16_t>(valeur)));
    case Evenement::MemoireInconnue:
        return Dire("Mémoire inconnue : %1", "Unknown memory: %1").arg(valeur);
    case Evenement::TableInutilisable:
        return Dire("Départ refusé : pas de table utilisable", "Start refused: no usable table");
    case Evenement::VitesseImpossible:
        return Dire("%1 : plus d'un pas par tick, une vraie machine en perdrait",
                    "%1: more than one step a tick, a real machine would lose some")
            .arg(Axe(valeur));
    case Evenement::PaquetEcarte:
        return Dire("Paquet de %1 octets écarté", "Packet of %1 bytes thrown away").arg(valeur);
    }
    return {};
}

} // namespace

std::span<const Libelle> LibellesSimulateur() {
    return LIBELLES;
}

QString PhraseFin(FinMouvement fin) {
    switch (fin) {
    case FinMouvement::Aucune:
        return Dire("Liste abandonnée", "List given up");
    case FinMouvement::Commande:
        return Dire("Arrêt par le programme", "Stopped by the program");
    case FinMouvement::InterrupteurOrigine:
        return Dire("Arrêt : boucle d'origine ouverte", "Stopped: origin loop open");
    case FinMouvement::InterrupteurFinCourse:
        return Dire("Arrêt : fin de course ouverte", "Stopped: limit loop open");
    case FinMouvement::BoutonStop:
        return Dire("Arrêt par le bouton STOP", "Stopped by the STOP button");
    case FinMouvement::FinDeListe:
        return Dire("Liste terminée", "List finished");
    }
    return {};
}

QString PhraseEtat(const EtatBoite& etat) {
    if (!etat.sousTension) return Dire("Hors tension", "Power off");
    switch (etat.file) {
    case EtatFile::Remplissage:
        return Dire("Remplissage de la file", "Filling the queue");
    case EtatFile::EnMarche:
        return etat.enPause ? Dire("En pause, le fil chauffe", "Pausing, the wire warms up")
                            : Dire("En mouvement", "Moving");
    case EtatFile::Repos:
        break;
    }
    return etat.fin == FinMouvement::Aucune ? Dire("Au repos", "Idle") : PhraseFin(etat.fin);
}

QString PhraseNote(const NoteJournal& note) {
    const double s = std::chrono::duration<double>(note.temps).count();
    const QString temps = QString::number(s, 'f', 3).rightJustified(10);
    if (!note.estEchange) return temps + QStringLiteral("  ") + PhraseEvenement(note.evenement, note.valeur);
    const QString commande = QString::fromStdString(DecrireCommande(note.commande));
    const QString retour =
        note.corrompue ? Dire("réponse corrompue", "corrupt reply")
        : note.resultat == ResultatZelkoSucces
            ? QString::fromStdString(DecrireReponse(note.commande, note.reponse))
            : Dire("pas de réponse valable (%1)", "no valid reply (%1)").arg(note.resultat);
    return QStringLiteral("%1  #%2  %3 → %4").arg(temps).arg(note.numero).arg(commande, retour);
}

} // namespace tessarel::simulateur
