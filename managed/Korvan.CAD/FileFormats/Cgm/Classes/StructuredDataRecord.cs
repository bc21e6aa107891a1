using System.Collections.Generic;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>Values that tell their own types (ISO/IEC 8632-1, annex C).</summary>
public sealed class StructuredDataRecord
{
    /// <summary>The types of values, by their numbers in files.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum StructuredDataType
    {
        /// <summary>A record inside this one.</summary>
        StructuredData = 1,

        /// <summary>The number of a colour.</summary>
        ColorIndex = 2,

        /// <summary>A colour by its components.</summary>
        DirectColor = 3,

        /// <summary>A name, which is a number.</summary>
        Name = 4,

        /// <summary>One of a few values.</summary>
        Enumeration = 5,

        /// <summary>A whole number.</summary>
        Integer = 6,

        /// <summary>A whole number of 8 bits.</summary>
        Integer8 = 8,

        /// <summary>A whole number of 16 bits.</summary>
        Integer16 = 9,

        /// <summary>A whole number of 32 bits.</summary>
        Integer32 = 10,

        /// <summary>An index.</summary>
        Index = 11,

        /// <summary>A real number.</summary>
        Real = 12,

        /// <summary>A text.</summary>
        Text = 13,

        /// <summary>A text whose character set never changes.</summary>
        FixedText = 14,

        /// <summary>A coordinate of the device.</summary>
        ViewportCoordinate = 15,

        /// <summary>A coordinate.</summary>
        Coordinate = 16,

        /// <summary>A component of a colour.</summary>
        ColorComponent = 17,

        /// <summary>A number of 8 bits without sign.</summary>
        Unsigned8 = 18,

        /// <summary>A number of 32 bits without sign.</summary>
        Unsigned32 = 19,

        /// <summary>Bits, in groups of 16.</summary>
        Bits = 20,

        /// <summary>Colours of cells.</summary>
        ColorList = 21,

        /// <summary>A number of 16 bits without sign.</summary>
        Unsigned16 = 22,
    }

    /// <summary>Gets the members in their order.</summary>
    public List<Member> Members { get; } = [];

    /// <summary>Some values of one type.</summary>
    public sealed class Member
    {
        /// <summary>Creates a member.</summary>
        /// <param name="type">The type of its values.</param>
        /// <param name="values">The values: numbers as int or double, texts, colours or records.</param>
        public Member(StructuredDataType type, IEnumerable<object> values)
        {
            Type = type;
            Values = [.. values];
        }

        /// <summary>Gets the type of the values.</summary>
        public StructuredDataType Type { get; }

        /// <summary>Gets the values.</summary>
        public List<object> Values { get; }

        /// <inheritdoc/>
        public override string ToString() => $"{Type}: {string.Join(", ", Values)}";
    }
}
