xmiter=5xscale=1
xobj=ab
