// The boxes: who shows them, and the default that writes them as lines.
#include "dialogue.h"

#include <cstdio>
#include <utility>

namespace tessarel {

namespace {

ReponseBoite RepondreSurErreurStandard(const Boite& boite) {
    const std::string ligne = BoiteEnUneLigne(boite) + "\n";
    std::fputs(ligne.c_str(), stderr);
    return ReponseSansPersonne(boite.boutons);
}

AfficheurBoite& AfficheurCourant() {
    static AfficheurBoite afficheur = RepondreSurErreurStandard;
    return afficheur;
}

} // namespace

ReponseBoite ReponseSansPersonne(BoutonsBoite boutons) {
    switch (boutons) {
    case BoutonsBoite::Ok:
        return ReponseBoite::Ok;
    case BoutonsBoite::OuiNon:
        return ReponseBoite::Non;
    case BoutonsBoite::OkAnnuler:
    case BoutonsBoite::OuiNonAnnuler:
        break;
    }
    return ReponseBoite::Annuler;
}

AfficheurBoite InstallerAfficheurBoite(AfficheurBoite afficheur) {
    if (!afficheur) afficheur = RepondreSurErreurStandard;
    return std::exchange(AfficheurCourant(), std::move(afficheur));
}

ReponseBoite AfficherBoite(const Boite& boite) {
    return AfficheurCourant()(boite);
}

void AfficherInformation(const std::string& texte, const std::string& titre) {
    AfficherBoite({texte, titre, IconeBoite::Information, BoutonsBoite::Ok});
}

void AfficherExclamation(const std::string& texte, const std::string& titre) {
    AfficherBoite({texte, titre, IconeBoite::Exclamation, BoutonsBoite::Ok});
}

void AfficherCritique(const std::string& texte, const std::string& titre) {
    AfficherBoite({texte, titre, IconeBoite::Critique, BoutonsBoite::Ok});
}

bool DemanderOuiNon(const std::string& texte, const std::string& titre, IconeBoite icone) {
    return AfficherBoite({texte, titre, icone, BoutonsBoite::OuiNon}) == ReponseBoite::Oui;
}

std::string BoiteEnUneLigne(const Boite& boite) {
    std::string brut = boite.titre;
    if (!brut.empty()) brut += ": ";
    brut += boite.texte;
    std::string ligne;
    ligne.reserve(brut.size());
    for (const char c : brut) {
        if (c != '\r' && c != '\n') {
            ligne += c;
        } else if (!ligne.empty() && ligne.back() != ' ') {
            ligne += ' ';
        }
    }
    while (!ligne.empty() && ligne.back() == ' ') ligne.pop_back();
    return ligne;
}

} // namespace tessarel
