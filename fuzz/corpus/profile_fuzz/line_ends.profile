* TARQ profile written by TARQ Component at 10:11:12 on 13.04.2026
xabgap = 0.5
xadcol = 7
xbound = 'a bound'
xfnlog = "C:\\my logs\\a.log"
xipbnd = -1e+20
xmiter = 100
xminmx = 'max'
xobj = ''
xtolx = 1.25e-05
