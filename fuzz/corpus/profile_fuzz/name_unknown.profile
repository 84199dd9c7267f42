xscale=1

  xzbest = 1 ! no
