// Tables composed into messages and read back from them.
#include "memoires.h"

#include "app/texts/textes_programme.h"
#include "echange.h"
#include "platform/dialogue.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <algorithm>
#include <string>

namespace tessarel {

std::array<TableMachine, NombreMemoires> MemoiresZelko;

namespace {

// Sub-codes of T.
constexpr std::uint8_t TableEnRam = 1;
constexpr std::uint8_t LirePremierePartie = 3;
constexpr std::uint8_t EcrirePartie1 = 4;
constexpr std::uint8_t EcrirePartie2 = 6;
constexpr std::uint8_t ApresLecture = 7;
constexpr std::uint8_t EcrirePartie3 = 8;

// Bytes of part 1.
constexpr std::size_t OctetNom = 4;
constexpr std::size_t OctetEntrees = 12;
constexpr std::size_t OctetSorties = 17;
constexpr std::size_t OctetFrequence = 27;
constexpr std::size_t OctetPente = 28;
constexpr std::size_t OctetPWM = 29;
constexpr std::size_t OctetDelai = 30;
constexpr std::size_t OctetDrapeaux = 31;
constexpr std::size_t OctetConstante = 32;
// Settled: the box asks for this value behind the flags.
constexpr std::uint8_t ConstantePartie1 = 4;

constexpr std::uint8_t DrapeauSwitchs = 1;
constexpr std::uint8_t DrapeauOrientation = 2;
constexpr std::uint8_t DrapeauInversionMoteurs = 4;

constexpr std::int32_t PasFrequence = 10000; // Hz of one digit of the wire

Tampon MessageTable(std::uint8_t sousCode, int memoire) {
    Tampon tampon{};
    tampon[1] = CommandeTable;
    tampon[2] = sousCode;
    tampon[3] = static_cast<std::uint8_t>(memoire);
    return tampon;
}

std::uint8_t EnOctet(double valeur, const char* champ) {
    const double entier = Arrondi(valeur);
    if (!(entier >= 0 && entier <= 255))
        throw FauteDepassement(TexteRempli(TexteProgramme::TableHorsFormat, {champ}));
    return static_cast<std::uint8_t>(entier);
}

// Low 16 bits of a rounded value.
void EcrirePaire(Tampon& tampon, std::size_t debut, double valeur) {
    const auto bits = static_cast<std::uint32_t>(ArrondiLong(valeur));
    tampon[debut] = static_cast<std::uint8_t>(bits & 0xFFU);
    tampon[debut + 1] = static_cast<std::uint8_t>((bits >> 8U) & 0xFFU);
}

Tampon ComposerPartie1(const TableMachine& table, int memoire) {
    Tampon tampon = MessageTable(EcrirePartie1, memoire);
    std::string nom = EnWindows1252(table.Nom);
    nom.resize(LongueurNomMemoire, ' ');
    std::ranges::copy(nom, tampon.begin() + OctetNom);
    std::ranges::copy(table.CodesEntrees, tampon.begin() + OctetEntrees);
    std::ranges::copy(table.CodeDefinitionSortie, tampon.begin() + OctetSorties);
    tampon[OctetFrequence] = EnOctet(static_cast<double>(table.Frequence) / PasFrequence, "Frequence");
    tampon[OctetPente] = table.PenteAcceleration;
    tampon[OctetPWM] = static_cast<std::uint8_t>(table.PWMmaxi0to255 & 0xFF);
    tampon[OctetDelai] = table.DelaiMoteursOff;
    tampon[OctetDrapeaux] = static_cast<std::uint8_t>(
        (table.SwitchsActifs ? DrapeauSwitchs : 0) | (table.OrientationX == 1 ? DrapeauOrientation : 0) |
        (table.InversionSignalMoteurOnOff ? DrapeauInversionMoteurs : 0));
    tampon[OctetConstante] = ConstantePartie1;
    return tampon;
}

Tampon ComposerPartie2(const TableMachine& table, int memoire) {
    constexpr std::size_t pas = 4;
    constexpr std::size_t sansRampe = 14;
    constexpr std::size_t avecRampe = 24;
    Tampon tampon = MessageTable(EcrirePartie2, memoire);
    for (std::size_t axe = AxeX1; axe <= AxeY2; ++axe) {
        const double pasParMm = PasParMm(table, axe);
        EcrirePaire(tampon, pas + 2 * axe, pasParMm);
        EcrirePaire(tampon, sansRampe + 2 * axe, table.VmaxSansAccXY * pasParMm);
        EcrirePaire(tampon, avecRampe + 2 * axe, table.VmaxAvecAccXY * pasParMm);
    }
    return tampon; // the pairs of A stay 0, whatever the machine says of it: deliberate
}

Tampon ComposerPartie3(const TableMachine& table, int memoire) {
    constexpr std::size_t origine = 4;
    Tampon tampon = MessageTable(EcrirePartie3, memoire);
    for (std::size_t axe = AxeX1; axe <= AxeY2; ++axe)
        EcrirePaire(tampon, origine + 2 * axe, table.PasToOrigine[axe]);
    return tampon;
}

bool EnvoyerTampon(const Tampon& tampon) {
    TamponEchange = tampon;
    return Echanger();
}

// What a memory holds that was never written: all bits at one way.
bool EstVierge(std::string_view octets) {
    return std::ranges::all_of(octets, [](char c) { return c == '\0'; }) ||
           std::ranges::all_of(octets, [](char c) { return c == '\xFF'; });
}

} // namespace

double PasParMm(const TableMachine& table, std::size_t axe) {
    const double mmParTour = table.MmParTour[axe];
    if (mmParTour == 0) return 0;
    return Arrondi(table.MicroPas[axe] * double{table.PasParTourMoteur[axe]} / mmParTour);
}

MessagesTable ComposerMessagesTable(const TableMachine& table, int memoire) {
    return {ComposerPartie1(table, memoire), ComposerPartie2(table, memoire),
            ComposerPartie3(table, memoire)};
}

void LirePartie1(const Tampon& tampon, TableMachine& enregistrement) {
    std::string nom(tampon.begin() + OctetNom, tampon.begin() + OctetNom + LongueurNomMemoire);
    if (EstVierge(nom)) nom.clear();
    const auto premier = std::min(nom.find_first_not_of(' '), nom.size());
    nom.erase(0, premier);
    nom.erase(nom.find_last_not_of(' ') + 1);
    enregistrement.Nom = Windows1252EnUtf8(nom);
    std::copy_n(tampon.begin() + OctetEntrees, enregistrement.CodesEntrees.size(),
                enregistrement.CodesEntrees.begin());
    std::copy_n(tampon.begin() + OctetSorties, enregistrement.CodeDefinitionSortie.size(),
                enregistrement.CodeDefinitionSortie.begin());
    enregistrement.Frequence = tampon[OctetFrequence] * PasFrequence;
    enregistrement.PenteAcceleration = tampon[OctetPente];
    enregistrement.PWMmaxi0to255 = tampon[OctetPWM];
    enregistrement.DelaiMoteursOff = tampon[OctetDelai];
    enregistrement.AutoMoteursOff = tampon[OctetDelai] != 0;
    const std::uint8_t drapeaux = tampon[OctetDrapeaux];
    enregistrement.SwitchsActifs = (drapeaux & DrapeauSwitchs) != 0;
    // Deliberate: the bit as it stands, 2 and not 1. A machine has 0 here, so that 1 against 2 is never
    // compared.
    enregistrement.OrientationX = drapeaux & DrapeauOrientation;
    enregistrement.InversionSignalMoteurOnOff = (drapeaux & DrapeauInversionMoteurs) != 0;
}

bool EcrireTableDansZelkoEtChargerEnRam(int memoire) {
    constexpr std::string_view procedure = "EcrireTableDansZelkoEtChargerEnRam";
    MessagesTable messages;
    try {
        for (std::size_t axe = AxeX1; axe <= AxeA; ++axe)
            TableINI.PasParTour[axe] =
                ArrondiInteger(double{TableINI.PasParTourMoteur[axe]} * TableINI.MicroPas[axe]);
        messages = ComposerMessagesTable(TableINI, memoire);
    } catch (const FauteDepassement& faute) {
        AfficherInformation(std::string(faute.what()) + "\r\n" +
                                TexteRempli(TexteProgramme::ProcedureErreur, {std::string(procedure)}),
                            TexteRempli(TexteProgramme::TableHorsFormatTitre, {TableINI.Nom}));
        return false;
    }
    const bool ecrite = EnvoyerTampon(messages.Partie1) && EnvoyerTampon(messages.Partie2) &&
                        EnvoyerTampon(messages.Partie3) && ChargerMemoireEnRam(memoire);
    if (!ecrite) {
        SignalerErreurInterface(procedure);
        return false;
    }
    TableINI.NumeroMemoire = static_cast<std::uint8_t>(memoire);
    return true;
}

bool LireMemoireZelko(TableMachine& enregistrement, int memoire) {
    enregistrement = {};
    if (!EnvoyerTampon(MessageTable(LirePremierePartie, memoire))) {
        SignalerErreurInterface("LireMemoireZelko");
        return false;
    }
    LirePartie1(TamponEchange, enregistrement);
    enregistrement.NumeroMemoire = static_cast<std::uint8_t>(memoire);
    // The box wants this after each reading; nobody knows what it answers, and nobody asks.
    EnvoyerTampon(MessageTable(ApresLecture, memoire));
    EffacerTampon();
    return true;
}

bool ChargerMemoireEnRam(int memoire) {
    return EnvoyerTampon(MessageTable(TableEnRam, memoire));
}

} // namespace tessarel
