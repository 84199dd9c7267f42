xscale=1 xmiter=5   xtolx=1e-5 xobj='a b' xbound=c
