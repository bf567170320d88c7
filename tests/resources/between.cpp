// Stands for the application's library: refers to nothing of the artwork.
int artworkPassedOn()
{
    return 1;
}
