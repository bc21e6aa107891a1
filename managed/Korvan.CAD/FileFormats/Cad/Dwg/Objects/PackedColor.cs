using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Colours as drawing databases have them from release 2004 on: the highest byte says what the others are.
/// </summary>
internal static class PackedColor
{
    private const uint ByLayer = 0xC0;
    private const uint ByBlock = 0xC1;
    private const uint TrueColor = 0xC2;
    private const uint Indexed = 0xC3;
    private const uint None = 0xC8;
    private const int ByLayerIndex = 256;
    private const int NoneIndex = 257;

    /// <summary>Returns the index of a colour and its RGB, -1 for none.</summary>
    /// <param name="index">The index that the file has beside it.</param>
    /// <param name="value">The packed colour.</param>
    internal static (int Index, int Rgb) Unpack(int index, uint value) => (value >> 24) switch
    {
        ByLayer => (ByLayerIndex, -1),
        ByBlock => (0, -1),
        TrueColor => (index != 0 ? index : IndexedColors.Nearest((int)(value & 0xFFFFFF)), (int)(value & 0xFFFFFF)),
        Indexed => ((int)(value & 0xFF), -1),
        None => (NoneIndex, -1),
        _ => (index, -1),
    };

    /// <summary>Returns a colour packed.</summary>
    internal static uint Pack(int index, int rgb) => rgb >= 0 ? (TrueColor << 24) | (uint)(rgb & 0xFFFFFF)
        : index == ByLayerIndex ? ByLayer << 24
        : index == 0 ? ByBlock << 24
        : index == NoneIndex ? None << 24
        : (Indexed << 24) | (uint)(index & 0xFF);
}
