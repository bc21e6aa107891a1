using System;
using System.IO;
using System.Linq;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The schemas of a data section that has solids only: theirs, and those of the attributes that schemas
/// have.</summary>
internal static class SolidSchemas
{
    /// <summary>The index of the schema of solids.</summary>
    internal const int Solid = 0;

    private const int AttributeSize = 8;
    private const int IdentifierType = 10;
    private const int BinaryType = 15;
    private const int FlagType = 1;
    private const int ByteType = 7;

    private static readonly string[] Schemas =
    [
        "AcDb3DSolid_ASM_Data", "AcDbDs::TreatedAsObjectDataSchema", "AcDbDs::LegacySchema",
        "AcDbDs::IndexedPropertySchema", "AcDbDs::HandleAttributeSchema",
    ];

    private static readonly string[] Properties =
    [
        "AcDbDs::ID", "ASM_Data", "AcDbDs::TreatedAsObjectData", "AcDbDs::Legacy", "AcDs:Indexable",
        "AcDbDs::HandleAttribute",
    ];

    private static readonly int[] Offsets = new int[Schemas.Length];

    /// <summary>Gets the attributes and the schemas.</summary>
    internal static byte[] Data { get; } = WriteData();

    internal static byte[] DataNames => Names(Properties);

    internal static byte[] IndexNames => Names(Schemas);

    /// <summary>Returns where the schemas and the attributes are.</summary>
    /// <param name="segment">The index of the segment that has them.</param>
    internal static byte[] Index(int segment)
    {
        const long mark = 0x0AF10C;
        using MemoryStream content = new();
        using BinaryWriter writer = new(content);
        writer.Write(Schemas.Length);
        writer.Write(0);
        for (int i = 0; i < Schemas.Length; i++)
        {
            Array.ForEach([i, segment, Offsets[i]], writer.Write);
        }

        writer.Write(mark);
        writer.Write(Schemas.Length - 1);
        writer.Write(0);
        for (int i = 1; i < Schemas.Length; i++)
        {
            Array.ForEach([segment, (i - 1) * AttributeSize, i], writer.Write);
        }

        return content.ToArray();
    }

    private static byte[] WriteData()
    {
        using MemoryStream content = new();
        using BinaryWriter writer = new(content);
        for (int i = 1; i < Schemas.Length; i++)
        {
            writer.Write(AttributeSize);
            writer.Write(i < Schemas.Length - 1 ? 1 : 0);
        }

        WriteSchema(0, 0, 1);
        WriteProperty(0, IdentifierType, 2, 3);
        WriteProperty(1, BinaryType);
        for (int i = 1; i < Schemas.Length - 1; i++)
        {
            WriteSchema(i);
            WriteProperty(i + 1, FlagType);
        }

        // The last property refers to a handle by one byte.
        const int refers = 8;
        WriteSchema(Schemas.Length - 1);
        Array.ForEach([refers, Properties.Length - 1, ByteType, 1], writer.Write);
        writer.Write((short)1);
        writer.Write((byte)0);
        return content.ToArray();

        void WriteSchema(int schema, params long[] attributes)
        {
            Offsets[schema] = (int)content.Length;
            writer.Write((short)attributes.Length);
            Array.ForEach(attributes, writer.Write);
            writer.Write((short)(schema == Solid ? 2 : 1));
        }

        void WriteProperty(int name, int type, params long[] values)
        {
            Array.ForEach([0, name, type], writer.Write);
            writer.Write((short)values.Length);
            Array.ForEach(values, writer.Write);
        }
    }

    private static byte[] Names(string[] names) =>
    [
        .. BitConverter.GetBytes(names.Length),
        .. names.SelectMany(static name => Encoding.ASCII.GetBytes(name + "\0")),
    ];
}
