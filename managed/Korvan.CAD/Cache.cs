using System;
using System.IO;
using System.Threading;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD;

/// <summary>The storage of the pixels of all images in this process, and its limits.</summary>
public static class Cache
{
    private const long DefaultMemory = 1L << 30;
    private const long DefaultDisk = 8L << 30;

    private static readonly Lock Gate = new();
    private static string _folder = Path.GetTempPath();
    private static long _memoryLimit = DefaultMemory;
    private static bool _isMemoryLimitSet;
    private static long _diskLimit = DefaultDisk;
    private static long _memoryUsed;
    private static long _diskUsed;

    /// <summary>Gets or sets where the pixels of new images are stored. Existing images stay where they are.</summary>
    public static CacheType CacheType { get; set; }

    /// <summary>Gets or sets the folder of the files; the system's folder for temporary files by default. The files
    /// have no names that other programs could open, and vanish with the image or the process.</summary>
    /// <exception cref="FrameworkException">There is no such folder.</exception>
    public static string CacheFolder
    {
        get => _folder;
        set
        {
            Verify.NotEmpty(value);
            if (!Directory.Exists(value))
            {
                throw new FrameworkException($"The cache folder '{value}' does not exist; create it first.");
            }

            _folder = value;
        }
    }

    /// <summary>Gets or sets how many bytes the pixels of all images may take in memory; 0 for no limit. 1 GiB by
    /// default.</summary>
    /// <remarks>Setting it also raises what a single file may take: by default, loading, rendering and writing a file
    /// take at most 44 times its size, but at least 192 MiB, and pixels beyond that are stored on disk.</remarks>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative.</exception>
    public static long MaxMemoryForCache
    {
        get => _memoryLimit;
        set
        {
            Verify.NotNegative(value);
            _memoryLimit = value;
            _isMemoryLimitSet = true;
        }
    }

    /// <summary>Gets or sets how many bytes the pixels of all images may take on disk; 0 for no limit. 8 GiB by
    /// default.</summary>
    /// <exception cref="ArgumentOutOfRangeException">The number is negative.</exception>
    public static long MaxDiskSpaceForCache
    {
        get => _diskLimit;
        set
        {
            Verify.NotNegative(value);
            _diskLimit = value;
        }
    }

    /// <summary>Gets or sets whether cropping an image reallocates its pixels to the exact size at once. By default it
    /// keeps the larger allocation until it is disposed or resized.</summary>
    public static bool ExactReallocateOnly { get; set; }

    /// <summary>Gets how many bytes the pixels of all images take in memory now.</summary>
    public static long AllocatedMemoryBytesCount => Interlocked.Read(ref _memoryUsed);

    /// <summary>Gets how many bytes the pixels of all images take on disk now.</summary>
    public static long AllocatedDiskBytesCount => Interlocked.Read(ref _diskUsed);

    /// <summary>Resets all settings to their values at the start of the process.</summary>
    public static void SetDefaults()
    {
        CacheType = CacheType.Auto;
        CacheFolder = Path.GetTempPath();
        MaxMemoryForCache = DefaultMemory;
        _isMemoryLimitSet = false;
        MaxDiskSpaceForCache = DefaultDisk;
        ExactReallocateOnly = false;
    }

    /// <summary>What a message advises that states a limit of a single file.</summary>
    internal const string HowToRaise = $"set Cache.{nameof(MaxMemoryForCache)} to raise it";

    /// <summary>Gets the bytes that the program allows each file to take; 0 if it leaves that to the size of the
    /// file.</summary>
    internal static long MemoryOfOneFile =>
        !_isMemoryLimitSet ? 0 : _memoryLimit == 0 ? long.MaxValue : _memoryLimit;

    /// <summary>Reserves storage for pixels; returns whether it is on disk.</summary>
    /// <param name="bytes">The length.</param>
    /// <param name="fitsFile">Whether the file that the pixels are made of may take that much memory.</param>
    internal static bool Book(long bytes, bool fitsFile)
    {
        lock (Gate)
        {
            bool fits = _memoryLimit == 0 || _memoryUsed + bytes <= _memoryLimit;
            bool onDisk = CacheType == CacheType.CacheOnDiskOnly
                || (CacheType == CacheType.Auto && !(fits && fitsFile));
            if (onDisk ? IsDiskFull(bytes) : !fits)
            {
                throw NoRoom(bytes, "pixels", onDisk);
            }

            Add(bytes, onDisk);
            return onDisk;
        }
    }

    /// <summary>Reserves room on disk for output.</summary>
    internal static void BookOnDisk(long bytes)
    {
        lock (Gate)
        {
            if (IsDiskFull(bytes))
            {
                throw NoRoom(bytes, "output", onDisk: true);
            }

            Add(bytes, onDisk: true);
        }
    }

    private static bool IsDiskFull(long bytes) => _diskLimit != 0 && _diskUsed + bytes > _diskLimit;

    private static LimitMemoryException NoRoom(long bytes, string content, bool onDisk)
    {
        string place = onDisk ? $"on disk would pass Cache.{nameof(MaxDiskSpaceForCache)}"
            : $"in memory would pass Cache.{nameof(MaxMemoryForCache)}";
        return new LimitMemoryException(
            $"{bytes} bytes for {content} {place} ({(onDisk ? _diskLimit : _memoryLimit)} bytes,"
            + $" {(onDisk ? _diskUsed : _memoryUsed)} of them taken); dispose images or raise the limit.");
    }

    internal static void Release(long bytes, bool onDisk)
    {
        lock (Gate)
        {
            Add(-bytes, onDisk);
        }
    }

    private static void Add(long bytes, bool onDisk)
    {
        if (onDisk)
        {
            _diskUsed += bytes;
        }
        else
        {
            _memoryUsed += bytes;
        }
    }
}
