using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>What the record of an object says of its place among the others.</summary>
internal sealed class ObjectFrame
{
    /// <summary>The owner is stated.</summary>
    internal const int OwnerIsStated = 0;

    /// <summary>The owner is the active layout of paper space.</summary>
    internal const int InPaperSpace = 1;

    /// <summary>The owner is model space.</summary>
    internal const int InModelSpace = 2;

    /// <summary>Gets or sets what the owner of an entity is.</summary>
    internal int Mode { get; set; }

    internal ulong Owner { get; set; }

    internal List<ulong> Reactors { get; } = [];

    /// <summary>Gets or sets the extension dictionary; 0 for none.</summary>
    internal ulong Dictionary { get; set; }

    /// <summary>Gets or sets whether the entities before and after have the handles before and after.</summary>
    internal bool IsBetweenNeighbours { get; set; } = true;

    /// <summary>Gets or sets the entity before, up to release 2000.</summary>
    internal ulong Previous { get; set; }

    /// <summary>Gets or sets the entity after, up to release 2000.</summary>
    internal ulong Next { get; set; }

    /// <summary>Gets or sets the object that has the name and value of the colour; 0 for none.</summary>
    internal ulong Color { get; set; }

    /// <summary>Gets what the assembly of a drawing asks for.</summary>
    internal ObjectPlace Place => new(Mode, IsBetweenNeighbours, Owner, Next, Color);

    /// <summary>Makes it that of another object, of which nothing is known.</summary>
    internal void Clear()
    {
        (Mode, Owner, Dictionary, IsBetweenNeighbours, Previous, Next, Color) = (0, 0, 0, true, 0, 0, 0);
        Reactors.Clear();
    }
}

/// <summary>The place of an object among the others.</summary>
internal readonly record struct ObjectPlace(int Mode, bool IsBetweenNeighbours, ulong Owner, ulong Next, ulong Color);
