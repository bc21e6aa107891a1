using System;
using System.Collections.Generic;
using System.Linq;
using System.Reflection;
using System.Security.Cryptography;
using System.Security.Cryptography.X509Certificates;
using Korvan.CAD.Exif;
using Korvan.CAD.FileFormats;
using Korvan.CAD.FileFormats.Dicom;
using Korvan.CAD.FileFormats.Jpeg;
using Korvan.CAD.FileFormats.Pdf;
using Korvan.CAD.FileFormats.Psd;
using Korvan.CAD.FileFormats.Psd.Resources;
using Korvan.CAD.ImageOptions;
using Korvan.CAD.ImageOptions.SvgOptionsParameters;
using Korvan.CAD.Sources;

namespace Korvan.CAD.Tests.Options;

/// <summary>Values for members that differ from the current ones.</summary>
internal static class OptionValues
{
    private const string Password = "open";
    private static readonly byte[] Key = Certificate();

    /// <summary>Classes whose members are options themselves, with their factories.</summary>
    private static readonly Dictionary<Type, Func<object>> Groups = new()
    {
        [typeof(Compression)] = static () => new Compression(),
        [typeof(ContourOptions)] = static () => new ContourOptions(),
        [typeof(GraphicsOptions)] = static () => new GraphicsOptions(),
        [typeof(JFIFData)] = static () => new JFIFData(),
        [typeof(Margins)] = static () => new Margins(),
        [typeof(MultiPageOptions)] = static () => new MultiPageOptions(),
        [typeof(ObserverPoint)] = static () => new ObserverPoint(),
        [typeof(PaperToCadOptions)] = static () => new PaperToCadOptions(),
        [typeof(PdfDigitalSignatureDetailsCore)] = static () =>
            new PdfDigitalSignatureDetailsCore(Key, Password) { SigningTime = DateTime.UnixEpoch },
        [typeof(PdfDocumentInfo)] = static () => new PdfDocumentInfo(),
        [typeof(PdfDocumentOptions)] = static () => new PdfDocumentOptions(),
        [typeof(PenOptions)] = static () => new PenOptions(),
        [typeof(RasterizationQuality)] = static () => new RasterizationQuality(),
        [typeof(RdOptimizerSettings)] = static () => new RdOptimizerSettings(),
        [typeof(ResolutionSetting)] = static () => new ResolutionSetting(),
        [typeof(VectorizationOptions)] = static () => new VectorizationOptions(),
        [typeof(VectorRasterizationOptions)] = static () => new CadRasterizationOptions(),
    };

    /// <summary>Values for members whose type does not determine valid ones.</summary>
    private static readonly Dictionary<string, object?[]> ByName = new()
    {
        ["BackgroundColor"] = [Color.FromArgb(255, 20, 40, 60)],
        ["BppMax"] = [0.5],
        ["BitDepth"] = [4],
        ["BitsPerPixel"] = [1, 8, 32],
        ["BitsPerSample"] = [new[] { 8, 8, 8, 8 }, new[] { 8 }],
        ["CompressionLevel"] = [0, 9],
        ["CompressionRatio"] = [20f],
        ["DateTime"] = ["2020:02:03 04:05:06"],
        ["ExportArea"] = [new Rectangle(1, 1, 8, 8)],
        ["FirstPage"] = [1],
        ["FrameTime"] = [40],
        ["Layers"] = [new[] { "Walls" }],
        ["Layouts"] = [new[] { "Sheet" }],
        ["LineScale"] = [2.5],
        ["LoopCount"] = [3],
        ["MaxColors"] = [4],
        ["MaxQuality"] = [30],
        ["MinQuality"] = [90],
        ["PageCount"] = [1],
        ["PageHeight"] = [70f],
        ["PageWidth"] = [95f],
        ["Pages"] = [new[] { 0, 0 }],
        ["PageTitles"] = [new[] { "Nowhere" }],
        ["Quality"] = [20],
        ["RowsPerStrip"] = [5],
        ["ShxCodePages"] = [new[] { CodePages.Cyrillic }],
        ["ShxFonts"] = [new[] { "simplex.shx" }],
        ["SigningTime"] = [new DateTime(2020, 1, 2, 3, 4, 5, DateTimeKind.Utc)],
        ["Timeout"] = [600_000],
        ["UnitType"] = [UnitType.Centimeter],
        ["Zoom"] = [0.5f],
    };

    private static readonly Dictionary<Type, Func<object?, object?[]>> ByType = new()
    {
        [typeof(bool)] = static now => [!(bool)now!],
        [typeof(byte)] = static now => [(byte)((byte)now! + 1)],
        [typeof(int)] = static now => [(int)now! + 7],
        [typeof(float)] = static now => [(float)now! + 7.25f],
        [typeof(double)] = static now => [(double)now! + 7.25],
        [typeof(string)] = static _ => ["words"],
        [typeof(Color)] = static _ => [Color.FromArgb(255, 10, 150, 60)],
        [typeof(PointF)] = static _ => [new PointF(0.25f, 0.125f)],
        [typeof(SizeF)] = static _ => [new SizeF(150, 80)],
        [typeof(IColorPalette)] = static _ => [ColorPaletteHelper.Create4Bit()],
        [typeof(ISvgResourceKeeperCallback)] = static _ => [new Elsewhere()],
        [typeof(Source)] = static _ => [new StreamSource()],
        [typeof(JpegExifData)] = static _ => [new JpegExifData { Artist = "words" }],
        [typeof(ResourceBlock[])] = static _ => [new ResourceBlock[] { new XmpResouce(Title()) }],
        [typeof(XmpPacketWrapper)] = static _ => [Title()],
    };

    internal static bool IsGroup(Type type) => Groups.ContainsKey(type);

    internal static Type Concrete(Type type) =>
        type == typeof(VectorRasterizationOptions) ? typeof(CadRasterizationOptions) : type;

    internal static object New(Type type) => Groups[type]();

    /// <summary>Values that a member does not have.</summary>
    internal static object?[] Others(PropertyInfo property, object? now)
    {
        Type type = Nullable.GetUnderlyingType(property.PropertyType) ?? property.PropertyType;
        if (ByName.TryGetValue(property.Name, out object?[]? named) && type != typeof(RasterizationQuality))
        {
            return
            [
                .. named.Select(value => value is IConvertible and not Enum ? Convert.ChangeType(value, type) : value)
                    .Where(value => !Equals(value, now)),
            ];
        }

        if (type.IsEnum)
        {
            return [.. Enum.GetValues(type).Cast<object>().Distinct().Where(value => !value.Equals(now))];
        }

        return ByType.TryGetValue(type, out Func<object?, object?[]>? of)
            ? of(now)
            : throw new NotSupportedException(
                $"Say in {nameof(OptionValues)} what {property.DeclaringType!.Name}.{property.Name} is set to.");
    }

    private static XmpPacketWrapper Title()
    {
        var packet = new XmpPacketWrapper();
        packet.SetLocalizedText("http://purl.org/dc/elements/1.1/", "title", "words");
        return packet;
    }

    private static byte[] Certificate()
    {
        using var key = RSA.Create(2048); // its signatures are the same each time
        var request = new CertificateRequest(
            "CN=Drawing office", key, HashAlgorithmName.SHA256, RSASignaturePadding.Pkcs1);
        using X509Certificate2 certificate = request.CreateSelfSigned(
            DateTimeOffset.UnixEpoch, DateTimeOffset.UtcNow.AddYears(1));
        return certificate.Export(X509ContentType.Pkcs12, Password);
    }
}

/// <summary>A callback that claims to store fonts and images elsewhere.</summary>
internal sealed class Elsewhere : ISvgResourceKeeperCallback
{
    public void OnFontResourceReady(FontStoringArgs args) => args.FontFileUri = "elsewhere.ttf";

    public string OnImageResourceReady(byte[] imageData, SvgImageType imageType, string suggestedFileName) =>
        "elsewhere.png";
}
