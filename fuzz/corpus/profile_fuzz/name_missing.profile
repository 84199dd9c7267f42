xscale=1
 = 5
