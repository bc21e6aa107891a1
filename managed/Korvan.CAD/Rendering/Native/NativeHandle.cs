using System.Runtime.InteropServices;

namespace Korvan.CAD.Rendering.Native;

/// <summary>Owns an object of a native library and releases it once. Calls borrow <see cref="Pointer"/>.</summary>
internal sealed unsafe class NativeHandle : SafeHandle
{
    private readonly delegate*<nint, void> _release;

    /// <summary>Takes over an object.</summary>
    /// <param name="instance">Its address, or zero where it could not be made.</param>
    /// <param name="release">What releases it; from any thread, as it may be a finalizer.</param>
    internal NativeHandle(nint instance, delegate*<nint, void> release)
        : base(0, ownsHandle: true)
    {
        _release = release;
        SetHandle(instance);
    }

    public override bool IsInvalid => handle == 0;

    /// <summary>Gets the address, for a call during which the owner stays alive.</summary>
    internal nint Pointer
    {
        get
        {
            System.ObjectDisposedException.ThrowIf(IsClosed, this);
            return handle;
        }
    }

    protected override bool ReleaseHandle()
    {
        _release(handle);
        return true;
    }
}
