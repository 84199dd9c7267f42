xob'j = 1
