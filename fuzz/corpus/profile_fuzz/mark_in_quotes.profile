xfnmps = 'wow! so' ! much
