namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>What every new drawing holds.</summary>
internal static class StandardDrawing
{
    internal static void Fill(CadImage image)
    {
        image.BlockEntities.Add(image.ModelSpace);
        image.BlockEntities.Add(image.PaperSpace);
    }
}
