using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>What drawing databases have of a block in its record, and text files in the block itself.</summary>
internal sealed class BlockDefinition
{
    private const int ExternalFlags = 12;
    private const int LoadedFlag = 32;

    /// <summary>Gets or sets the flags of the block. Group code 70.</summary>
    internal int Flags { get; set; }

    internal Cad3DPoint BasePoint { get; } = new();

    internal string Path { get; set; } = "";

    internal string Description { get; set; } = "";

    /// <summary>Gets the references to the block.</summary>
    internal List<ulong> Inserts { get; } = [];

    /// <summary>Gets or sets the preview image of the block.</summary>
    internal byte[] Preview { get; set; } = [];

    private bool IsExternal => (Flags & ExternalFlags) != 0;

    internal void ExchangeBits(BitExchange fields)
    {
        ExchangeFlags(fields);
        fields.ChildCount(!IsExternal);
        fields.Point3(BasePoint);
        Path = fields.Text(Path);
        if (fields.Release < 2000)
        {
            return;
        }

        ExchangeInsertCount(fields);
        Description = fields.Text(Description);
        Preview = fields.Block(Preview);
    }

    /// <summary>Carries the references to the entities of the block, and those to the block.</summary>
    internal void ExchangeParts(BitExchange fields, CadBlockTableObject record)
    {
        fields.BlockParts(record, !IsExternal);
        for (int i = 0; i < Inserts.Count; i++)
        {
            Inserts[i] = fields.Handle(HandleRole.SoftPointer, Inserts[i]);
        }
    }

    private void ExchangeFlags(BitExchange fields)
    {
        int flags = fields.Bit((Flags & 1) != 0) ? 1 : 0;
        flags |= fields.Bit((Flags & 2) != 0) ? 2 : 0;
        flags |= fields.Bit((Flags & 4) != 0) ? 4 : 0;
        flags |= fields.Bit((Flags & 8) != 0) ? 8 : 0;
        if (fields.Release >= 2000)
        {
            bool isLoaded = !fields.Bit((flags & 4) != 0 && (Flags & LoadedFlag) == 0);
            flags |= (flags & 4) != 0 && isLoaded ? LoadedFlag : 0;
        }

        Flags = flags;
    }

    // A byte that is not 0 for each reference, and 0 after the last.
    private void ExchangeInsertCount(BitExchange fields)
    {
        int index = 0;
        while (fields.RawByte(index < Inserts.Count ? 1 : 0) != 0)
        {
            if (fields.IsReading)
            {
                Inserts.Add(0);
            }

            index++;
        }
    }
}
