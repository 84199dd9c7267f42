x m i t e r = 5
