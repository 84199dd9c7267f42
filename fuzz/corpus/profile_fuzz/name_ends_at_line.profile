xscale=1
xmiter
xmxnod=4