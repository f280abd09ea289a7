(Fichier Gcode de decoupe)
(Fichier genere par Tessarel v@VERSION@ : @SITE_SUPPORT@)
(Fichier Tessarel du projet : aile.tsr)
(Table de découpe : Atelier)
(Corde Cote 1 : 120mm)
(Corde Cote 2 : 72mm)
(Distance Cote1<-->Cote2 : 400mm)
(Duree de la decoupe :  1min 46s, Vitesse découpe max : 4.0 mm/s, Chauffe : 65.0 %)
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
G01 X0.0000 Y28.2601 A0.0000 Z17.5288 F18.987940
G01 X67.5000 Y28.2601 A22.5000 Z17.5288 F4.363636
G01 X82.6990 Y28.2601 A37.5592 Z17.5288 F15.830949
G01 X103.6122 Y33.7403 A112.5356 Z32.0250 F3.925018
G01 X103.5098 Y33.7313 A112.5082 Z32.0241 F2933.256265
G01 X124.0032 Y31.4015 A187.3143 Z27.4076 F4.009907
G01 X123.7563 Y31.8995 A187.0937 Z27.5533 F514.618269
G01 X123.7563 Y30.2169 A187.0937 Z23.3033 F67.856438
G01 X123.9792 Y30.7076 A187.2809 Z23.4367 F538.497065
G01 X103.4348 Y28.8914 A112.4652 Z10.3491 F3.962724
G01 X103.4914 Y28.8924 A112.5063 Z10.3512 F4587.180805
G01 X82.5408 Y29.0153 A37.5418 Z17.2225 F3.988801
G01 X67.5000 Y29.0153 A22.5000 Z17.2225 F15.955831
G01 X0.0000 Y29.0153 A0.0000 Z17.2225 F4.363636
G01 X0.0000 Y0.0000 A0.0000 Z0.0000 F18.648345
(Arret de la chauffe)
M5
(Fin du programme)
M2
