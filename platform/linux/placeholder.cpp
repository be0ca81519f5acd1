// Keeps the Linux platform library non-empty before its seams exist.
