(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : inexistant, il n'y a pas eu de sauvegarde prealable a l'export du Gcode)
(Table de découpe : (Defaut))
(Corde Cote 1 : 100.0mm)
(Corde Cote 2 : 100.0mm)
(Projet 2D)
(Duree de la decoupe :  6min 16s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y225.0000 A0.0000 Z225.0000 F1.066667
G01 X225.0000 Y225.0000 A225.0000 Z225.0000 F1.066667
G01 X125.0000 Y225.0000 A125.0000 Z225.0000 F2.400000
G01 X125.0000 Y25.0000 A125.0000 Z25.0000 F1.200000
G01 X225.0000 Y25.0000 A225.0000 Z25.0000 F2.400000
G01 X225.0000 Y225.0000 A225.0000 Z225.0000 F1.200000
G01 X0.0000 Y225.0000 A0.0000 Z225.0000 F1.066667
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F1.066667
(Arret de la chauffe)
M5
(Fin du programme)
M2
