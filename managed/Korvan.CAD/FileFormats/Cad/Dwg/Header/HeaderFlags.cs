using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>The variables that share the bits of one integer of the header section.</summary>
internal static class HeaderFlags
{
    private const int ByLayer = -1;
    private const int ForbidsEditing = 0x400;

    // The variable, its group code, its lowest bit, its mask, and whether the bits state the opposite.
    private static readonly (string Name, int GroupCode, int Shift, int Mask, int Inverted)[] Fields =
    [
        ("$ENDCAPS", 280, 5, 3, 0),
        ("$JOINSTYLE", 280, 7, 3, 0),
        ("$LWDISPLAY", 290, 9, 1, 1),
        ("$XEDIT", 290, 10, 1, 1),
        ("$EXTNAMES", 290, 11, 1, 0),
        ("$PSTYLEMODE", 290, 13, 1, 0),
        ("$OLESTARTUP", 290, 14, 1, 0),
    ];

    internal static void ToHeader(int flags, CadHeader header)
    {
        short weight = LineWeights.ToLineWeight(flags & LineWeights.Mask);
        header.Set("$CELWEIGHT", 370, weight.ToString(CultureInfo.InvariantCulture));
        foreach ((string name, int groupCode, int shift, int mask, int inverted) in Fields)
        {
            int value = ((flags >> shift) & mask) ^ inverted;
            header.Set(name, groupCode, value.ToString(CultureInfo.InvariantCulture));
        }
    }

    internal static int FromHeader(CadHeader header)
    {
        int flags = LineWeights.ToNumber((short)header.GetDouble("$CELWEIGHT", ByLayer));
        foreach ((string name, _, int shift, int mask, int inverted) in Fields)
        {
            if (header.Contains(name))
            {
                flags |= ((header.GetInt(name) ^ inverted) & mask) << shift;
            }
        }

        return flags & ~(header.Contains("$XEDIT") ? 0 : ForbidsEditing);
    }
}
