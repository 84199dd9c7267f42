xobj=a'b c'd e
