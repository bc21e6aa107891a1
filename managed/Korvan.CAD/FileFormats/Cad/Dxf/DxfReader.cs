namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Reads interchange files.</summary>
internal sealed class DxfReader(byte[] data, string fileName, LoadOptions options)
{
    private readonly DxfTagReader _tags = new(data, fileName);

    internal DxfImage Read()
    {
        _tags.Errors = options.Errors;
        return new DxfImage(DrawingSeed.Blank);
    }
}
