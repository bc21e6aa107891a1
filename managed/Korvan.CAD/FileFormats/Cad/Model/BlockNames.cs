using System;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Names of the blocks that hold model and paper space, and the flag of those whose name means
/// nothing.</summary>
internal static class BlockNames
{
    internal const string ModelSpace = "*Model_Space";
    internal const string PaperSpace = "*Paper_Space";

    /// <summary>The flag of blocks whose name a program made.</summary>
    internal const short Anonymous = 1;

    internal static bool IsModelSpace(string name)
    {
        return Is(name, ModelSpace) || Is(name, "$MODEL_SPACE");
    }

    /// <summary>Tells whether a block is the active sheet of paper.</summary>
    internal static bool IsActivePaperSpace(string name)
    {
        return Is(name, PaperSpace) || Is(name, "$PAPER_SPACE");
    }

    /// <summary>Tells whether a block is a sheet of paper, active or not.</summary>
    internal static bool IsAnyPaperSpace(string name)
    {
        return name.StartsWith(PaperSpace, StringComparison.OrdinalIgnoreCase)
            || name.StartsWith("$PAPER_SPACE", StringComparison.OrdinalIgnoreCase);
    }

    private static bool Is(string name, string other) => string.Equals(name, other, StringComparison.OrdinalIgnoreCase);
}
