// The texts that have a name and no row number: boxes of single routines, dialog titles and filters, pieces
// of summaries, reasons of refusals. To add one: an enumerator here, in the group of its subject, and its
// line with both languages at the same place in textes_programme.cpp (which doesn't build while the two
// orders differ). A text that takes values has the marks %1 to %9 where they go; fill it with TexteRempli.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tessarel {

enum class TexteProgramme {
    // Titles that many boxes share
    TitreErreur,
    TitreOperationImpossible,

    // Start-up
    InstanceUnique,
    InstanceUniqueTitre,
    ErreurChargementRam, // %1 what the link said
    ErreurEtape,         // %1 number, %2 description, %3 line, %4 procedure, %5 window
    ContactAuteur,
    ProcedureErreur,      // %1 procedure
    ProcedureErreurTitre, // %1 procedure
    IniSansRetourChariot,
    IniSansRetourChariotMatieres,
    IniSansRetourChariotTitre,
    DossierImpossible, // %1 folder, %2 reason
    DossierImpossibleTitre,
    SplashCourses, // %1 and %2 travel in X and Y, mm
    SplashMemoireEgale,
    SplashMemoireDifferente,
    SplashMemoireVide,

    // Machines and materials
    ChargementMachineImpossible, // %1 machine
    ReparationTitre,             // %1 key
    ReparationTexte,             // %1 key or name of a material, %2 new value
    ReparationLongueurFil,
    OrigineEnHautTitre,
    OrigineEnHautTexte, // %1 machine, %2 site of the sibling program
    MachineParDefautChargee,
    MachineParDefautChargeeTitre,
    SortiesIdentiques,
    ChampNombreAttendu,
    ChampHorsLimites, // %1 lowest, %2 highest, %3 unit
    ChampSortieEnDouble,
    ChampZeroRemplace, // %1 value in its place
    ChampSeraRamene,   // %1 value in its place
    ChampPasTropFins,
    NomMachineTropLong,
    NomMachineImpossible,
    NomMatiereImpossible,
    SaigneeHorsCurseur,
    SaigneeYMoinsE,
    SortiePas,       // %1 axis
    SortieDirection, // %1 axis
    SortieInversee,  // %1 what it does
    SortieLibre,
    ParametresEffacerBulle,
    ParametresModifies,
    ParametresEcartementUtile,  // %1 mm
    ParametresMouvementsActifs, // %1 memory, from 1
    ParametresAbandon,          // %1 machine
    ParametresChargementDefaut,
    ParametresChoisirMemoire,
    ParametresEnvoyes,     // %1 machine, %2 memory, from 1
    ParametresEnregistres, // %1 machine
    EssaiEnCours,          // %1 percent done
    EssaiTermine,
    EssaiArrete,
    EssaiSansConfirmation, // the box did not answer the stop
    EssaiImpossible,
    ChauffeEssaiCoupure,
    EssaiSansReponse,
    ValeursMatiere,     // %1 heat, %2 speed, %3 and %4 kerfs
    MachineDesMatieres, // %1 machine
    BoutonAbandonner,
    ExplicationsAbsentes, // %1 file

    // The interface box
    FilPeutEtreChaud,
    FilChaudSurManu,
    FilChaudSurManuTitre,
    DecoupeTermineeFilChaud,
    MachineModifiee, // %1 machine
    MachineModifieeTitre,
    MachineModifieeALArret, // %1 machine
    ChauffeRattrapee,
    ChauffeRattrapeeTitre,
    MachineEnMarche,
    MachineEnMarcheTitre,
    MachineArretee,
    MachineArreteeTitre,
    LaisseeEnMarche,
    LaisseeSansMouvements,
    ArretPerime,
    ArretPerimeTitre,
    VitesseIncorrecte,
    ErreurPositionStop,
    MarcheSansRaison,
    MarcheSansRaisonTitre,
    BoitierMuet,
    MarcheAbandonnee,
    MarcheAbandonneeTitre,
    TempsRestant, // %1 duration
    DecoupeArretee,
    ReprendreDecoupe,
    ReprendreDecoupeBulle,
    ReglagesDecoupe,
    RetourArrete,
    TerminerRetour,
    TerminerRetourBulle,
    ReglagesRetour,
    ChauffeCoupeeALArret,
    TableHorsFormatTitre, // %1 machine
    TableHorsFormat,      // %1 key

    // Moves and heat by hand in 2D
    OrigineAxeQuestion, // %1 axis
    OrigineAxeFaite,    // %1 axis
    OrigineAxeFaiteTitre,
    SigneFilChaud,
    SigneFilIncertain,
    ManuelConseil,
    ChauffeManuelleAtteinte,
    ChauffeManuelleCoupeeParMachine,
    ChauffeManuelleCoupeeEnfin,

    // Projects
    FiltreProjet,
    CommentaireTropLong,
    CommentaireTropLongTitre,
    AncienneVersion,
    AncienneVersionTitre,

    // 4-axis design
    IntermediaireNombres,
    CtrlSansPremierBouton,
    CordeTropPetite,
    OutilInconnu,      // %1 control
    OutilSansIndice,   // %1 control
    OutilIndice,       // %1 control, %2 highest index, %3 index given
    OutilValeur,       // %1 control
    OutilTropDeTermes, // %1 control, %2 what is too much

    // Drawings in and out
    OuvrirDessinTitre,
    FiltreDessins,
    FiltreExportDxf,

    // Reasons of a refused file, after its name and line
    LectureFichierVide,
    LectureFichierTronque,
    LectureFichierBinaire,
    LectureNombreAttendu,         // %1 what stands there
    LectureEntierAttendu,         // %1 what stands there
    LecturePointAttendu,          // %1 what stands there
    LecturePointProjetAttendu,    // %1 what stands there
    LectureChoixAttendu,          // %1 highest choice, %2 what stands there
    LectureValeurHorsLimites,     // %1 what stands there
    LectureCoordonneeHorsLimites, // %1 what stands there
    LectureNombrePoints,          // %1 announced, %2 present
    LectureNombreSequences,       // %1 announced, %2 present
    LectureCoordonneesAttendues,
    LectureAucuneCoordonnee,
    LectureGenreInconnu,
    LectureAileAttendue,     // %1, %2 sections
    LecturePointAileAttendu, // %1 what stands there
    LectureNombreCleAttendu, // %1 key, %2 what stands there
    NoteDoublons,            // %1 number of paths
    NoteAilePouces,
    NoteAileProfilAbsent, // %1 section
    NoteAileProfilLu,     // %1 section, %2 file
    LectureSansTrace,
    LectureTropDePoints, // %1 present, %2 highest
    EcritureImpossible,  // %1 file, %2 reason
    SortieEgaleEntree,   // %1 file

    // 2D work
    PasDeCoefficient,
    MargesPlusGrandesQueLeBloc,
    PileTransformations,
    TrajetTropLong, // %1 points present, %2 highest count
    FiltreGcode,
    VitesseTropBasse,

    // 4-axis cut
    Decoupe4axesSansEcartement,
    Decoupe4axesSansSegment,
    Decoupe4axesSansVitesse,
    IndiceHorsBornes, // %1 index, %2 count
    Apercu4xCote,
    Apercu4xPlan,
    Apercu4xChariot1,
    Apercu4xChariot2,
    Apercu4xEmplanture,
    Apercu4xSaumon,

    // Library and report of an opening
    BibliothequeFichierExterieur,
    BibliothequeTropGrande,
    BibliothequeCopieImpossible,
    ApercuDe,        // %1 file
    OuvertureJoints, // %1 number, likewise below
    OuvertureRetournes,
    OuverturePointsRetires,
    OuvertureIgnores,
    RapportTitre,
    RapportFichier, // %1 path
    RapportGenre,   // %1 kind
    RapportTraces,  // %1 number, likewise below
    RapportPoints,
    RapportPointsRetires,
    RapportJoints,
    RapportRetournes,
    RapportNotes,
    RapportLus,
    RapportCouches,
    RapportIgnores,
    BoutonFermer,

    // Summary of a cut
    ResumeVitesse, // %1 speed, %2 duration
    ResumeChauffe, // %1 heat, %2 offset
    ResumeMatiere, // %1 name
    ResumeSaignee, // %1 kerf
    DureeJours,    // %1 number, likewise below
    DureeHeures,
    DureeMinutes,
    DureeSecondes,

    // 2D window
    Fenetre2DTitre,      // of a project without a name
    Fenetre2DEtatProjet, // %1 paths, %2 points
    Fenetre2DEtatVide,
    Fenetre2DEtatMachine, // %1 machine
    Fenetre2DMouvementsActifs,
    Fenetre2DEtatSauve,   // %1 path
    Fenetre2DEtatExporte, // %1 path
    Fenetre2DEtatOuvert,  // %1 file, %2 paths, %3 points
    Fenetre2DCoordonnees, // %1 x, %2 y
    Fenetre2DIgnores,     // %1 kinds with their counts
    Fenetre2DAucunRecent,
    Fenetre2DAideTitre,
    Fenetre2DAide,
    Fenetre2DLecture, // %1 file
    BoutonAnnuler,

    // 2D workshop: what the mouse would do now
    AtelierTableVide,
    AtelierSurTable,
    AtelierCadreEntiers,
    AtelierCadreTouches,
    AtelierSurDecoupe,
    AtelierSurTrace,
    AtelierSurSelection,
    AtelierSurPoignee,
    AtelierSurRotation,
    AtelierDeplace,       // %1 and %2 mm
    AtelierRedimensionne, // %1 and %2 mm
    AtelierTourne,        // %1 degrees
    AtelierInserer,
    AtelierInsererIci, // %1 x, %2 y
    AtelierCouper,
    AtelierCouperIci, // %1 number of the point, %2 how many there are
    AtelierInsertion,
    AtelierInsertionIci, // %1 x, %2 y
    SaisieLargeur,
    SaisieHauteur,
    SaisieEnX,
    SaisieEnY,

    Fin // not a text: their number
};

// The text in the language in use; before any load, the French one. It stays valid to the program's end.
const std::string& Texte(TexteProgramme cle);

// The same with each mark replaced: %1 by the first value, and so on. A mark without a value stays as it is;
// a value is taken as it stands, marks in it included.
std::string TexteRempli(TexteProgramme cle, std::initializer_list<std::string_view> valeurs);
// The filling alone, for a text that comes from elsewhere.
std::string RemplirMarques(std::string_view texte, std::initializer_list<std::string_view> valeurs);

} // namespace tessarel
