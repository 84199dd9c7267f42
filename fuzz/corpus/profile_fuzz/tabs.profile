	xmiter	=	5	xscale	=1
