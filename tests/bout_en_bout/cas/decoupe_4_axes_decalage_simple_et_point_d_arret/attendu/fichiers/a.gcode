(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  1min 47s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y28.2598 A0.0000 Z17.5289 F18.988075
G01 X67.5000 Y28.2598 A22.5000 Z17.5289 F4.363636
G01 X82.6991 Y28.2598 A37.5592 Z17.5289 F15.830908
G01 X103.5616 Y33.7284 A112.5220 Z32.0230 F3.926582
G01 X123.6123 Y31.4380 A187.1491 Z27.4146 F4.026911
(Point d'arrêt, il faut relancer manuellement le mouvement)
M0
(Suite de la découpe)
G01 X123.6123 Y30.6553 A187.1491 Z23.4114 F77.203642
G01 X103.4632 Y28.8901 A112.4856 Z10.3547 F3.977351
G01 X82.5406 Y29.0119 A37.5419 Z17.2238 F3.990318
G01 X67.5000 Y29.0119 A22.5000 Z17.2238 F15.955831
G01 X0.0000 Y29.0119 A0.0000 Z17.2238 F4.363636
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F18.649883
(Arret de la chauffe)
M5
(Fin du programme)
M2
