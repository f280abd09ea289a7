(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  2min 49s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y75.5000 A0.0000 Z75.5000 F6.357616
G01 X179.4000 Y75.5000 A116.4000 Z75.5000 F2.865672
G01 X179.4000 Y22.7673 A116.4000 Z34.5360 F9.503124
G01 X13.9283 Y22.7673 A58.7886 Z34.5360 F1.654054
G01 X84.1576 Y36.4725 A75.0810 Z39.2573 F3.919632
G01 X84.1917 Y36.4742 A75.1900 Z39.2669 F2933.256265
G01 X154.6134 Y32.0374 A91.9245 Z37.0435 F3.972550
G01 X154.8363 Y31.8603 A92.1737 Z36.5142 F514.618269
G01 X154.8363 Y27.0322 A92.1737 Z33.6186 F53.774030
G01 X154.6459 Y26.8670 A91.9476 Z33.0961 F538.497065
G01 X84.2375 Y14.7027 A75.2679 Z32.1604 F3.928575
G01 X84.1950 Y14.7007 A75.2099 Z32.1595 F4587.180805
G01 X13.9583 Y20.9793 A58.9593 Z31.6864 F3.983568
G01 X13.9583 Y75.5000 A58.9593 Z75.5000 F4.571579
G01 X0.0000 Y75.5000 A0.0000 Z75.5000 F11.305046
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F6.357616
(Arret de la chauffe)
M5
(Fin du programme)
M2
