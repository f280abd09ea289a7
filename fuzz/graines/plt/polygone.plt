in;pu0,0;pd100,0;dt#;lbtexte#sm*;pa5,5;sm;dt;lbautrepm0;pd0,100,100,100;pm1;ci40;pm2;fp;ep;at50,50,100,0;rt5,5,10,0;bz1,2,3,4,5,6;br1,1,2,2,3,0;co"x;y";# fin
