using System;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Line weights by the numbers that drawing databases have for them.</summary>
internal static class LineWeights
{
    /// <summary>The bits of a number.</summary>
    internal const int Mask = 0x1F;

    private const short ByLayer = -1;

    // In hundredths of a millimetre.
    private static readonly short[] Weights =
    [
        0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211,
        0, 0, 0, 0, 0, -1, -2, -3,
    ];

    /// <summary>Returns the line weight of a number in hundredths of a millimetre, or -1, -2 or -3 by layer, by block
    /// or the default.</summary>
    internal static short ToLineWeight(int number) =>
        number >= 0 && number < Weights.Length ? Weights[number] : ByLayer;

    /// <summary>Returns the number of a line weight.</summary>
    internal static int ToNumber(short lineWeight)
    {
        int exact = Array.IndexOf(Weights, lineWeight);
        return exact >= 0 ? exact : Array.IndexOf(Weights, ByLayer);
    }
}
