xipbnd=1e20 xminmx=MAX xipbnd=-1e20
xminmx=Min
