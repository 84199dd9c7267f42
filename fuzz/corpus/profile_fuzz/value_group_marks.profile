xmiter = 1,000
xtolx=0,5
