xmiter = 1e3 xadcol=+7 xabgap=.5e-1
