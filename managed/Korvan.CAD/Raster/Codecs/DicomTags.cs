namespace Korvan.CAD.Raster.Codecs;

/// <summary>Tags and identifiers of DICOM (PS3.5 and PS3.6).</summary>
internal static class DicomTags
{
    internal const uint TransferSyntax = 0x00020010;
    internal const uint SamplesPerPixel = 0x00280002;
    internal const uint Photometric = 0x00280004;
    internal const uint PlanarConfiguration = 0x00280006;
    internal const uint NumberOfFrames = 0x00280008;
    internal const uint Rows = 0x00280010;
    internal const uint Columns = 0x00280011;
    internal const uint PixelSpacing = 0x00280030;
    internal const uint BitsAllocated = 0x00280100;
    internal const uint BitsStored = 0x00280101;
    internal const uint HighBit = 0x00280102;
    internal const uint PixelRepresentation = 0x00280103;
    internal const uint WindowCenter = 0x00281050;
    internal const uint WindowWidth = 0x00281051;
    internal const uint RescaleIntercept = 0x00281052;
    internal const uint RescaleSlope = 0x00281053;
    internal const uint PixelData = 0x7FE00010;
    internal const uint Item = 0xFFFEE000;
    internal const uint ItemEnd = 0xFFFEE00D;
    internal const uint SequenceEnd = 0xFFFEE0DD;
    internal const uint UndefinedLength = 0xFFFFFFFF;

    internal const string ImplicitLittleEndian = "1.2.840.10008.1.2";
    internal const string ExplicitLittleEndian = "1.2.840.10008.1.2.1";
    internal const string Rle = "1.2.840.10008.1.2.5";
    internal const string JpegBaseline = "1.2.840.10008.1.2.4.50";
    internal const string Jpeg2000Lossless = "1.2.840.10008.1.2.4.90";
    internal const string Jpeg2000 = "1.2.840.10008.1.2.4.91";

    internal const string SecondaryCapture = "1.2.840.10008.5.1.4.1.1.7";
    internal const string MultiFrameGrayscaleByte = "1.2.840.10008.5.1.4.1.1.7.2";
    internal const string MultiFrameGrayscaleWord = "1.2.840.10008.5.1.4.1.1.7.3";
    internal const string MultiFrameTrueColor = "1.2.840.10008.5.1.4.1.1.7.4";
}
