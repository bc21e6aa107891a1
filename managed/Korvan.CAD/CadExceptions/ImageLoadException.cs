using System;
using Korvan.CAD.Input;

namespace Korvan.CAD.CadExceptions;

/// <summary>A file or stream could not be read: it is missing, damaged or of a format that has no reader.</summary>
public class ImageLoadException : ImageException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public ImageLoadException(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public ImageLoadException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }

    /// <summary>Creates the exception for a defect of the file.</summary>
    internal ImageLoadException(LoadDefect defect, Exception? innerException = null)
        : this(defect, string.Empty, innerException)
    {
    }

    /// <summary>Creates the exception for a defect of the file, with a text after its message.</summary>
    internal ImageLoadException(LoadDefect defect, string more, Exception? innerException = null)
        : base(defect + more, innerException)
    {
        Defect = defect;
    }

    /// <summary>Gets the defect that ended the load; null if the cause is no defect of the content.</summary>
    internal LoadDefect? Defect { get; }
}
