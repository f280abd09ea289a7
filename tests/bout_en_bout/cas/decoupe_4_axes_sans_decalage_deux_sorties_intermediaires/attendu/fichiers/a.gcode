(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  2min 9s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y29.1250 A0.0000 Z17.8750 F18.461538
G01 X67.5000 Y29.1250 A22.5000 Z17.8750 F4.363636
G01 X82.5000 Y29.1250 A37.5000 Z17.8750 F16.000000
G01 X103.5000 Y34.6250 A112.5000 Z32.3750 F3.922323
G01 X124.5000 Y32.2500 A187.5000 Z27.7500 F3.991141
G01 X144.5000 Y32.2500 A207.5000 Z27.7500 F12.000000
(Point d'arrêt, il faut relancer manuellement le mouvement)
M0
(Suite de la découpe)
G01 X124.5000 Y32.2500 A187.5000 Z27.7500 F12.000000
G01 X124.5000 Y29.8750 A187.5000 Z23.1250 F60.000000
G01 X144.5000 Y29.8750 A207.5000 Z23.1250 F12.000000
(Point d'arrêt, il faut relancer manuellement le mouvement)
M0
(Suite de la découpe)
G01 X124.5000 Y29.8750 A187.5000 Z23.1250 F12.000000
G01 X103.5000 Y28.0000 A112.5000 Z10.0000 F3.945576
G01 X82.5000 Y28.1250 A37.5000 Z16.8750 F3.986183
G01 X67.5000 Y28.1250 A22.5000 Z16.8750 F16.000000
G01 X0.0000 Y28.1250 A0.0000 Z16.8750 F4.363636
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F19.200000
(Arret de la chauffe)
M5
(Fin du programme)
M2
