using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The data of a modeler with the types of its values: what its text and its binary form have in
/// common.</summary>
internal sealed class AcisFile
{
    /// <summary>Gets the version of the format: 100 times the major release of the modeler and the minor one; 20800
    /// and above for that of drawings of release 2004 and later.</summary>
    internal required int Version { get; init; }

    /// <summary>Gets how many of the records at the beginning are the roots of what is stored.</summary>
    internal int RootCount { get; init; } = 1;

    internal int Flags { get; init; }

    /// <summary>Gets the values after the version: product, modeler and date, the length of a unit in millimetres, and
    /// the tolerances of positions and directions. Empty before version 200.</summary>
    internal List<AcisToken> Header { get; init; } = [];

    internal List<AcisRecord> Records { get; } = [];
}

/// <summary>A record: its type, as <c>plane-surface</c>, and what follows.</summary>
internal sealed record AcisRecord(string Type, List<AcisToken> Tokens);
