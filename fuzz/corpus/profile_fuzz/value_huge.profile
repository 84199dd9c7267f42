xabgap = 1e999
