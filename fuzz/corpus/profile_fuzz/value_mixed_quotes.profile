xminmx="MAX'
