namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A drawing that was read from a drawing database, or is to become one.</summary>
public class DwgImage : CadImage
{
    /// <summary>Creates an empty drawing of release 2018 with the standard tables.</summary>
    public DwgImage()
    {
    }

    internal DwgImage(CadDrawing drawing)
        : base(drawing)
    {
    }
}
