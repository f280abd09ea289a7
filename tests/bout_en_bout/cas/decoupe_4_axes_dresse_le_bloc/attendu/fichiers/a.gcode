(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  3min 16s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y90.0000 A0.0000 Z90.0000 F5.333333
G01 X67.5000 Y90.0000 A22.5000 Z90.0000 F4.363636
G01 X72.0000 Y90.0000 A27.0000 Z90.0000 F53.333333
G01 X72.0000 Y5.0000 A27.0000 Z5.0000 F2.823529
G01 X72.0000 Y90.0000 A27.0000 Z90.0000 F2.823529
G01 X135.0000 Y90.0000 A198.0000 Z90.0000 F3.404255
G01 X135.0000 Y5.0000 A198.0000 Z5.0000 F2.823529
G01 X135.0000 Y90.0000 A198.0000 Z90.0000 F2.823529
G01 X67.5000 Y90.0000 A22.5000 Z90.0000 F1.649485
G01 X0.0000 Y90.0000 A0.0000 Z90.0000 F4.363636
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F5.333333
(Arret de la chauffe)
M5
(Fin du programme)
M2
