xmiter = 2.5
xadcol = 3.5
xadrow = -0.4
