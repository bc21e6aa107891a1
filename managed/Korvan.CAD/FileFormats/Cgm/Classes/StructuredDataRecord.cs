using System.Collections.Generic;
using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Classes;

/// <summary>A structured data record: values with their types (ISO/IEC 8632-1, annex C).</summary>
public sealed class StructuredDataRecord
{
    /// <summary>The data types of values, by their indexes in files.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum StructuredDataType
    {
        /// <summary>A nested record.</summary>
        StructuredData = 1,

        /// <summary>A colour index.</summary>
        ColorIndex = 2,

        /// <summary>A direct colour.</summary>
        DirectColor = 3,

        /// <summary>A name, which is an integer.</summary>
        Name = 4,

        /// <summary>An enumerated value.</summary>
        Enumeration = 5,

        /// <summary>An integer.</summary>
        Integer = 6,

        /// <summary>A signed 8-bit integer.</summary>
        Integer8 = 8,

        /// <summary>A signed 16-bit integer.</summary>
        Integer16 = 9,

        /// <summary>A signed 32-bit integer.</summary>
        Integer32 = 10,

        /// <summary>An index.</summary>
        Index = 11,

        /// <summary>A real number.</summary>
        Real = 12,

        /// <summary>A string.</summary>
        Text = 13,

        /// <summary>A string without character set switches.</summary>
        FixedText = 14,

        /// <summary>A viewport coordinate.</summary>
        ViewportCoordinate = 15,

        /// <summary>A virtual device coordinate.</summary>
        Coordinate = 16,

        /// <summary>A colour component.</summary>
        ColorComponent = 17,

        /// <summary>An unsigned 8-bit integer.</summary>
        Unsigned8 = 18,

        /// <summary>An unsigned 32-bit integer.</summary>
        Unsigned32 = 19,

        /// <summary>Bits, in groups of 16.</summary>
        Bits = 20,

        /// <summary>A list of cell colours.</summary>
        ColorList = 21,

        /// <summary>An unsigned 16-bit integer.</summary>
        Unsigned16 = 22,
    }

    /// <summary>Gets the members in their order.</summary>
    public List<Member> Members { get; } = [];

    /// <summary>Values of one data type.</summary>
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

        /// <summary>Gets the data type of the values.</summary>
        public StructuredDataType Type { get; }

        /// <summary>Gets the values.</summary>
        public List<object> Values { get; }

        /// <inheritdoc/>
        public override string ToString() => $"{Type}: {string.Join(", ", Values)}";
    }
}
