"""The table of the exported routines and what is made from it."""
