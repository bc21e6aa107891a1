using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>The own data and references of a record that no class interprets.</summary>
/// <param name="record">The record.</param>
/// <param name="place">Where they are in it.</param>
/// <param name="self">The handle of the object, which others are relative to.</param>
/// <param name="release">The release as a year.</param>
internal sealed class StoredProxy(byte[] record, RecordPlace place, ulong self, int release) : Deferred<ProxyContent>
{
    internal override ProxyContent Create() => new(
        DwgContent.NumberOf(release), place.DataEnd - place.DataStart, ReadData(), ReadReferences());

    private byte[] ReadData()
    {
        BitReader bits = new(record, place.DataStart, place.DataEnd);
        BitWriter data = new();
        while (bits.Remaining >= 8)
        {
            data.RawByte(bits.RawByte());
        }

        while (bits.Remaining > 0)
        {
            data.Bit(bits.Bit());
        }

        return data.ToArray();
    }

    private List<CadCodeValue> ReadReferences()
    {
        List<CadCodeValue> found = [];
        BitReader bits = new(record, place.References, (long)record.Length << 3);
        try
        {
            while (bits.Remaining >= 8)
            {
                (int group, ulong handle) = Absolute(bits.Handle());
                found.Add(new CadCodeValue(group, HandleText.Format(handle)));
            }
        }
        catch (DwgFault)
        {
            // A record that is damaged at its end refers to nothing from there on.
        }

        return found;
    }

    private (int Group, ulong Handle) Absolute((int Code, ulong Value) reference) => reference.Code switch
    {
        2 => (350, reference.Value),
        3 => (360, reference.Value),
        5 => (340, reference.Value),
        6 => (330, self + 1),
        8 => (330, self - 1),
        0xA => (330, self + reference.Value),
        0xC => (330, self - reference.Value),
        _ => (330, reference.Value),
    };
}

/// <summary>Where a record has what is its own, in bits.</summary>
/// <param name="DataStart">The first bit of its data.</param>
/// <param name="DataEnd">The bit after its data and its strings.</param>
/// <param name="References">The first bit of its references.</param>
internal readonly record struct RecordPlace(long DataStart, long DataEnd, long References);
