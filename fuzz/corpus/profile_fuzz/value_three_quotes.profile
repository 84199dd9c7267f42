xobj='''
xbound=''''
