using System;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>
/// States the fields of a class in the order and coding of drawing databases (DWG). The generator makes
/// <c>ExchangeBits</c> of them, which reads and writes. An item is one of:
/// <list type="bullet">
/// <item><c>3BD Center</c>: a coding and a property, of this class, a base class or a part (<c>Margin.Top</c>).
/// Codings are those of the format: B BB BS BL BLL BD RC RS RL RD T H CMC BT BE 3BD 2BD 3RD 2RD, and CMP for a colour
/// of which the class has the packed value. Angles are converted
/// to degrees where the property is one; H takes its kind from the group code, and becomes a name where the
/// property is one.</item>
/// <item><c>CMC Color Rgb Name</c>: a colour by its index, and where the class has them RGB and name; <c>TC</c> the
/// same in the form of release 2004, whatever the release is.</item>
/// <item><c>3BD[BL] Points</c>: a list after its number of items in the coding within the brackets, or as many as an
/// expression there says.</item>
/// <item><c>Matrix Transform</c>: sixteen numbers.</item>
/// <item><c>Part Margin</c>, <c>Part[BL] Cells</c>: objects with lists of their own.</item>
/// <item><c>BS = 1</c>: a value that the class does not keep, and what is written.</item>
/// <item><c>base</c>: the fields of the base class. <c>declared</c>: the fields in the order of their group codes and
/// in the coding that their types have.</item>
/// <item><c>partial</c>, at the end: further fields are not stated, so that records are kept as they are; after a
/// condition, objects for which it holds cannot be written.</item>
/// <item><c>ExchangeFaces()</c>: a method of the class that takes the <see cref="BitExchange"/>.</item>
/// </list>
/// Before an item there may be releases as years (<c>2007+</c>, <c>-1997</c>, <c>2000-2004</c>) and a condition
/// (<c>if HasSun:</c>).
/// </summary>
/// <param name="items">The items.</param>
[AttributeUsage(AttributeTargets.Class, Inherited = false)]
internal sealed class CadBitsAttribute(params string[] items) : Attribute
{
    /// <summary>Gets the items.</summary>
    internal string[] Items { get; } = items;
}
