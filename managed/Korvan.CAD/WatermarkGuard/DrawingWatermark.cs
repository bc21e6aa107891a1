using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.TimeProvision;

namespace Korvan.CAD.WatermarkGuard;

/// <summary>The watermark of a drawing, in the extended data of records that every drawing has.</summary>
internal sealed class DrawingWatermark(CadDrawing drawing) : IWatermarkGuardService
{
    private const string Application = "KORVAN_WATERMARK";
    private const int BinaryChunk = 1004;

    /// <summary>A binary chunk of extended data has at most 127 bytes.</summary>
    private const int ChunkLength = 127;

    public WatermarkingStatus Status
    {
        get
        {
            List<byte[]?> copies = Copies();
            List<byte[]> whole = [.. copies.OfType<byte[]>()];
            bool same = whole.Count == copies.Count && whole.TrueForAll(copy => copy.SequenceEqual(whole[0]));
            return whole.Count == 0 ? WatermarkingStatus.None
                : same ? WatermarkingStatus.Found : WatermarkingStatus.Found | WatermarkingStatus.Damaged;
        }
    }

    public void Embed(string text, string password, TimeProvisionType time)
    {
        Verify.NotNull(text);
        byte[] seal = WatermarkSeal.Close(text, password, time);
        foreach (CadBaseObject host in Hosts())
        {
            Put(host, seal);
        }
    }

    public void Embed(string text, string password) => Embed(text, password, TimeProvisionType.None);

    public WatermarkingStatus Validate(string text, string password)
    {
        Verify.NotNull(text);
        WatermarkingStatus status = Status;
        if (status == WatermarkingStatus.None)
        {
            return status;
        }

        return Open(password) is not { } seal
            ? status | WatermarkingStatus.WrongPassword
            : status | (seal.Text == text ? WatermarkingStatus.Valid : WatermarkingStatus.TextDiffers);
    }

    public string? GetText(string password) => Open(password)?.Text;

    public DateTime? GetTime(string password) => Open(password)?.Time;

    public bool Remove()
    {
        bool found = false;
        foreach (CadBaseObject host in Hosts())
        {
            found |= host.XdataOrNull?.XdataEntities.RemoveAll(IsOurs) > 0;
        }

        return found;
    }

    private static bool IsOurs(CadXdata data) =>
        data.RegisteredApplicationName.Equals(Application, StringComparison.OrdinalIgnoreCase);

    private static void Put(CadBaseObject host, byte[] seal)
    {
        host.XdataContainer.XdataEntities.RemoveAll(IsOurs);
        var data = new CadXdata(Application);
        foreach (byte[] chunk in seal.Chunk(ChunkLength))
        {
            data.Data.Add(new CadCodeValue(BinaryChunk, Convert.ToHexString(chunk)));
        }

        host.XdataContainer.XdataEntities.Add(data);
    }

    private static byte[]? Copy(CadBaseObject host)
    {
        if (host.XdataOrNull?.Find(Application) is not { } data)
        {
            return null;
        }

        StringBuilder digits = new();
        data.Data.FindAll(static tag => tag.Attribute == BinaryChunk).ForEach(tag => digits.Append(tag.Value));
        try
        {
            return Convert.FromHexString(digits.ToString());
        }
        catch (FormatException)
        {
            return null;
        }
    }

    /// <summary>The records with a copy: the first layer, the first text style and the first line type.</summary>
    private List<CadBaseObject> Hosts()
    {
        List<CadBaseObject> hosts = [];
        hosts.AddRange(drawing.Layers.Items.Take(1));
        hosts.AddRange(drawing.Styles.Items.Take(1));
        hosts.AddRange(drawing.LineTypes.Items.Take(1));
        return hosts.Count > 0
            ? hosts
            : throw new InvalidOperationException(
                "The drawing has no layers, text styles or line types that could hold a watermark.");
    }

    private List<byte[]?> Copies() => Hosts().ConvertAll(Copy);

    private WatermarkSeal? Open(string password)
    {
        HashSet<string> tried = [];
        foreach (byte[]? copy in Copies())
        {
            if (copy is not null && tried.Add(Convert.ToHexString(copy))
                && WatermarkSeal.Open(copy, password) is { } seal)
            {
                return seal;
            }
        }

        return null;
    }
}
