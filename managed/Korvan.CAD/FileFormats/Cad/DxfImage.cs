namespace Korvan.CAD.FileFormats.Cad;

/// <summary>A drawing that was read from, or is to become, an interchange file.</summary>
public class DxfImage : CadImage
{
    /// <summary>Creates an empty drawing of release 2018 with the standard tables.</summary>
    public DxfImage()
    {
    }

    internal DxfImage(CadDrawing drawing)
        : base(drawing)
    {
    }
}
