(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : inexistant, il n'y a pas eu de sauvegarde prealable a l'export du Gcode)
(Table de découpe : Atelier)
(Corde Cote 1 : 0mm)
(Corde Cote 2 : 0mm)
(Distance Cote1<-->Cote2 : 0mm)
(Duree de la decoupe :  1min 0s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
(********* Gcode *********)
(Unites en mm)
G21
(Mode inverse du temps - Plus precis pour les decoupes coniques)
G93
(Mise en route de la chauffe {S0;S5;S10;S15;...;S995;S1000}<=>{0%;0.5%;1%;...;99.5%;100%} )
M3 S650
(Delai de mise en chauffe du fil avant mouvement, en secondes)
G4 P2.0
(Deplacements des axes)
(Remarque: Si le fil est stocke dans une saignee, l'origine est plus bas que le plateau de la table et les Y en tiennent compte)
(Deplacements en absolu - Plus precis)
G90
(Point de depart: X0 Y0 A0 Z0 - Peut se situer sous le niveau du plateau si le fil se range dans une saignee)
G01 X0.0000 Y5.0000 A0.0000 Z5.0000 F48.000000
G01 X100.0000 Y105.0000 A100.0000 Z105.0000 F3.394113
(Point d'arrêt, il faut relancer manuellement le mouvement)
M0
(Suite de la découpe)
G01 X0.0000 Y5.0000 A0.0000 Z5.0000 F1.697056
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F48.000000
(Arret de la chauffe)
M5
(Fin du programme)
M2
