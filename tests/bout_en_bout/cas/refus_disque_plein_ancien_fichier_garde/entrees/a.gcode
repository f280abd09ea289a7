ancien
