* a

  
