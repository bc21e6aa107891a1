namespace Korvan.CAD.Rendering.Scene;

/// <summary>Colours that entities keep as one number: the first byte tells what the others mean.</summary>
internal static class RawColor
{
    internal const uint ByBlock = 0xc1000000;

    /// <summary>The bit of a transparency whose lowest byte is the opacity.</summary>
    internal const int HasOpacity = 0x02000000;

    internal static DrawingColor Decode(uint raw) => (raw >> 24) switch
    {
        0xc1 => new DrawingColor(AciPalette.ByBlock),
        0xc2 => new DrawingColor(0, (int)(raw & 0xffffff)),
        0xc3 => new DrawingColor((int)(raw & 0xff)),
        _ => new DrawingColor(AciPalette.ByLayer),
    };
}
