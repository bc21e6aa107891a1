using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The parts of an object: vertices, attributes, or the entities of a block. Up to release 2000 the parts are
/// linked from the first to the last, then the owner lists them.</summary>
internal sealed class ChildHandles
{
    internal ulong First { get; set; }

    internal ulong Last { get; set; }

    internal List<ulong> Owned { get; } = [];

    /// <summary>Gets or sets the entity before the parts, of a block.</summary>
    internal ulong Begin { get; set; }

    /// <summary>Gets or sets the entity after the parts.</summary>
    internal ulong End { get; set; }
}
