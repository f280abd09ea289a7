(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  1min 33s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y29.4525 A0.0000 Z18.7211 F18.987940
G01 X45.5000 Y29.4525 A0.5000 Z18.7211 F8.571429
G01 X60.7145 Y29.4525 A15.5748 Z18.7211 F15.830949
G01 X75.6207 Y33.9309 A84.5441 Z32.2156 F3.925018
G01 X75.5100 Y33.9210 A84.5084 Z32.2138 F2933.256265
G01 X89.9686 Y31.8453 A153.2797 Z27.8514 F4.009907
G01 X89.7188 Y32.3824 A153.0562 Z28.0362 F514.618269
G01 X89.7188 Y30.9851 A153.0562 Z24.0714 F67.856438
G01 X89.9457 Y31.5155 A153.2474 Z24.2446 F538.497065
G01 X75.4314 Y30.9516 A84.4619 Z12.4093 F3.962724
G01 X75.4898 Y30.9525 A84.5046 Z12.4114 F4587.180805
G01 X60.5407 Y30.3257 A15.5417 Z18.5328 F3.988801
G01 X45.5000 Y30.3257 A0.5000 Z18.5328 F15.955831
G01 X0.0000 Y30.3257 A0.0000 Z18.5328 F8.571429
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F18.648345
(Arret de la chauffe)
M5
(Fin du programme)
M2
