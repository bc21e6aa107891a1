using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Reads some of the objects of a file. Several threads do so at once: each changes its own objects, and
/// collects defects in a list of its own.</summary>
/// <param name="file">The file.</param>
/// <param name="reader">A reader of its records.</param>
/// <param name="objects">The objects of the file.</param>
/// <param name="defects">Gets what is wrong.</param>
internal sealed class PieceReader(DwgFile file, RecordReader reader, ObjectSet objects, RecordDefects defects)
{
    /// <summary>Reads the objects in a range.</summary>
    /// <param name="states">What is known of all objects.</param>
    /// <param name="start">The first object.</param>
    /// <param name="end">The object after the last one.</param>
    /// <param name="readsContent">Whether more than checksums is asked for: not after a defect that ends the
    /// load.</param>
    internal void Read(RecordState[] states, int start, int end, bool readsContent)
    {
        for (int i = start; i < end; i++)
        {
            if (states[i] == RecordState.IsMissing)
            {
                continue;
            }

            RecordHeader header = reader.ReadHeader(file.Map.Offsets[i]);
            bool isWhole = file.HasRightChecksum(file.Map.Offsets[i], header.End >> 3);
            if (!isWhole)
            {
                defects.AddChecksum(i);
            }

            if (states[i] == RecordState.IsFound && readsContent && (file.Source.IsTolerant || defects.IsEmpty))
            {
                Read(header, i, isWhole);
            }
        }
    }

    private void Read(in RecordHeader header, int index, bool isWhole)
    {
        try
        {
            RecordContent content = reader.Read(header);
            VerifyHandle(content, header, index);
            objects.Set(index, content);
        }
        catch (DwgFault fault) when (isWhole && !ObjectTypeTable.IsRecord(header.Type))
        {
            Keep(header, index, fault);
        }
        catch (DwgFault fault)
        {
            defects.Add(RecordDefects.Stage.Content, index, reader.NameOf(header.Type), fault);
        }
    }

    // Others refer to the object by the handle that the map states. A record that states another one is not written
    // back.
    private void VerifyHandle(RecordContent content, in RecordHeader header, int index)
    {
        if (content.Target is { } target && target.Handle != file.Map.Handles[index])
        {
            string cause = $"the record states the handle {HandleText.Format(target.Handle)}";
            defects.Add(
                RecordDefects.Stage.Content, index, target.DxfName, new DwgFault(header.Fields, cause));
            target.Handle = file.Map.Handles[index];
            target.Kept = (target.Kept as KeptBits)?.WithoutRecord() ?? target.Kept;
        }
    }

    // A record that is whole and cannot be read has fields that its class does not know: it is kept like one without a
    // class.
    private void Keep(in RecordHeader header, int index, DwgFault fault)
    {
        string type = reader.NameOf(header.Type);
        try
        {
            objects.Set(index, reader.ReadKept(header));
            defects.AddKept(index, type, fault);
        }
        catch (DwgFault)
        {
            defects.Add(RecordDefects.Stage.Content, index, type, fault);
        }
    }
}

/// <summary>What is known of an object that the object map names.</summary>
internal enum RecordState : byte
{
    /// <summary>There is no record where the map says.</summary>
    IsMissing,

    /// <summary>There is a record.</summary>
    IsFound,

    /// <summary>There is a record of which no more is to be read.</summary>
    IsRead,
}
