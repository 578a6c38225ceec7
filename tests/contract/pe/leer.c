/* A DLL that carries nothing but its version resource. */
int kes_vertrag_pe = 0;
