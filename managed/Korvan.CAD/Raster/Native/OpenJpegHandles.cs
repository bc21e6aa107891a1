using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>A compressor or a decompressor of OpenJPEG.</summary>
internal sealed class OpenJpegCodecHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle()
    {
        OpenJpeg.DestroyCodec(handle);
        return true;
    }
}

/// <summary>A stream of OpenJPEG; the .NET stream that it calls has an owner of its own.</summary>
internal sealed class OpenJpegStreamHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle()
    {
        OpenJpeg.DestroyStream(handle);
        return true;
    }
}

/// <summary>An image of OpenJPEG, with the samples of its components.</summary>
internal sealed unsafe class OpenJpegImageHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    /// <summary>Gets the header; it is valid as long as the handle is open.</summary>
    internal ref OpenJpeg.ImageHeader Header => ref *(OpenJpeg.ImageHeader*)handle;

    protected override bool ReleaseHandle()
    {
        OpenJpeg.DestroyImage(handle);
        return true;
    }
}
