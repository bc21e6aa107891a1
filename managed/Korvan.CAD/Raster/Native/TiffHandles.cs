using System.Runtime.InteropServices;

namespace Korvan.CAD.Raster.Native;

/// <summary>A TIFF that libtiff has open; closing it writes what is buffered.</summary>
internal sealed class TiffHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle()
    {
        Tiff.Close(handle);
        return true;
    }
}

/// <summary>Options that libtiff opens a file with.</summary>
internal sealed class TiffOpenOptionsHandle() : SafeHandle(0, ownsHandle: true)
{
    public override bool IsInvalid => handle == 0;

    protected override bool ReleaseHandle()
    {
        Tiff.FreeOptions(handle);
        return true;
    }
}
