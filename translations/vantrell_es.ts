<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Alert</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
</context>
<context>
    <name>Column</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Falta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Source Timecode</source>
        <translation>Código de tiempo de origen</translation>
    </message>
    <message>
        <source>Reel</source>
        <translation>Bobina</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Usos</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>Secuencias</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activo</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Secuencia</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Musicalización</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>head %1</source>
        <translation>inicio %1</translation>
    </message>
    <message>
        <source>tail %1</source>
        <translation>final %1</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 activado</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 desactivado</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>era %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>variable</source>
        <translation>variable</translation>
    </message>
</context>
<context>
    <name>Edit</name>
    <message>
        <source>Rename Marker</source>
        <translation>Renombrar marcador</translation>
    </message>
    <message>
        <source>Rename Markers</source>
        <translation>Renombrar marcadores</translation>
    </message>
    <message>
        <source>Change Comment</source>
        <translation>Cambiar comentario</translation>
    </message>
    <message>
        <source>Change Comments</source>
        <translation>Cambiar comentarios</translation>
    </message>
    <message>
        <source>Change Color</source>
        <translation>Cambiar color</translation>
    </message>
    <message>
        <source>Change Colors</source>
        <translation>Cambiar colores</translation>
    </message>
    <message>
        <source>Change In Point</source>
        <translation>Cambiar punto de entrada</translation>
    </message>
    <message>
        <source>Change In Points</source>
        <translation>Cambiar puntos de entrada</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <translation>Cambiar duración</translation>
    </message>
    <message>
        <source>Change Durations</source>
        <translation>Cambiar duraciones</translation>
    </message>
    <message>
        <source>Change Chapter Flag</source>
        <translation>Cambiar indicador de capítulo</translation>
    </message>
    <message>
        <source>Change Chapter Flags</source>
        <translation>Cambiar indicadores de capítulo</translation>
    </message>
    <message>
        <source>Change Compression Flag</source>
        <translation>Cambiar indicador de compresión</translation>
    </message>
    <message>
        <source>Change Compression Flags</source>
        <translation>Cambiar indicadores de compresión</translation>
    </message>
    <message>
        <source>Change Scoring Flag</source>
        <translation>Cambiar indicador de musicalización</translation>
    </message>
    <message>
        <source>Change Scoring Flags</source>
        <translation>Cambiar indicadores de musicalización</translation>
    </message>
    <message>
        <source>Change Marker Field</source>
        <translation>Cambiar campo de marcador</translation>
    </message>
    <message>
        <source>Change Marker Fields</source>
        <translation>Cambiar campos de marcador</translation>
    </message>
    <message>
        <source>Move Marker to Sequence</source>
        <translation>Mover marcador a secuencia</translation>
    </message>
    <message>
        <source>Move Marker to Clip</source>
        <translation>Mover marcador a clip</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Añadir marcador</translation>
    </message>
    <message>
        <source>Duplicate Marker</source>
        <translation>Duplicar marcador</translation>
    </message>
    <message>
        <source>Duplicate Markers</source>
        <translation>Duplicar marcadores</translation>
    </message>
    <message>
        <source>Move Marker</source>
        <translation>Mover marcador</translation>
    </message>
    <message>
        <source>Move Markers</source>
        <translation>Mover marcadores</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Importar marcadores</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Quitar marcador</translation>
    </message>
    <message>
        <source>Remove Markers</source>
        <translation>Quitar marcadores</translation>
    </message>
    <message>
        <source>Offset Marker</source>
        <translation>Desplazar marcador</translation>
    </message>
    <message>
        <source>Offset Markers</source>
        <translation>Desplazar marcadores</translation>
    </message>
    <message>
        <source>Carry Markers</source>
        <translation>Trasladar marcadores</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Revincular</translation>
    </message>
    <message>
        <source>Change Effect</source>
        <translation>Cambiar efecto</translation>
    </message>
    <message>
        <source>Change Effects</source>
        <translation>Cambiar efectos</translation>
    </message>
    <message>
        <source>Switch On Effect</source>
        <translation>Activar efecto</translation>
    </message>
    <message>
        <source>Switch On Effects</source>
        <translation>Activar efectos</translation>
    </message>
    <message>
        <source>Switch Off Effect</source>
        <translation>Desactivar efecto</translation>
    </message>
    <message>
        <source>Switch Off Effects</source>
        <translation>Desactivar efectos</translation>
    </message>
    <message>
        <source>Remove Effect</source>
        <translation>Quitar efecto</translation>
    </message>
    <message>
        <source>Remove Effects</source>
        <translation>Quitar efectos</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer «%1»</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>The row above or below</source>
        <translation>La fila anterior o siguiente</translation>
    </message>
    <message>
        <source>The cell to the left or right</source>
        <translation>La celda de la izquierda o la derecha</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Una página arriba o abajo</translation>
    </message>
    <message>
        <source>The first or last cell of the row</source>
        <translation>La primera o la última celda de la fila</translation>
    </message>
    <message>
        <source>The first or last cell of the table</source>
        <translation>La primera o la última celda de la tabla</translation>
    </message>
    <message>
        <source>Select further rows</source>
        <translation>Ampliar la selección de filas</translation>
    </message>
    <message>
        <source>The next or previous cell</source>
        <translation>La celda siguiente o anterior</translation>
    </message>
    <message>
        <source>Out of the table</source>
        <translation>Salir de la tabla</translation>
    </message>
    <message>
        <source>Switch the check box of the current cell</source>
        <translation>Cambiar la casilla de la celda actual</translation>
    </message>
    <message>
        <source>Edit the current cell, or open its list</source>
        <translation>Editar la celda actual o abrir su lista</translation>
    </message>
    <message>
        <source>The context menu of the selected rows</source>
        <translation>El menú contextual de las filas seleccionadas</translation>
    </message>
    <message>
        <source>Markers Table</source>
        <translation>Tabla de marcadores</translation>
    </message>
    <message>
        <source>Effects Table</source>
        <translation>Tabla de efectos</translation>
    </message>
    <message>
        <source>Take the selected effects off the list; the project keeps them</source>
        <translation>Retirar de la lista los efectos seleccionados; el proyecto los conserva</translation>
    </message>
    <message>
        <source>Marker Overview</source>
        <translation>Vista general de marcadores</translation>
    </message>
    <message>
        <source>The previous or next marker</source>
        <translation>El marcador anterior o siguiente</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>Acercar o alejar</translation>
    </message>
    <message>
        <source>Show the whole sequence</source>
        <translation>Mostrar toda la secuencia</translation>
    </message>
    <message>
        <source>Show the whole sequence, then back to the table</source>
        <translation>Mostrar toda la secuencia y, después, volver a la tabla</translation>
    </message>
    <message>
        <source>While a Cell Is Edited</source>
        <translation>Al editar una celda</translation>
    </message>
    <message>
        <source>Keep what was typed</source>
        <translation>Aceptar lo escrito</translation>
    </message>
    <message>
        <source>Keep a typed in point, with the duration of the marker</source>
        <translation>Aceptar el punto de entrada escrito y conservar la duración del marcador</translation>
    </message>
    <message>
        <source>Keep what was typed and edit the next or previous cell</source>
        <translation>Aceptar lo escrito y editar la celda siguiente o anterior</translation>
    </message>
    <message>
        <source>Leave the cell as it was</source>
        <translation>Dejar la celda como estaba</translation>
    </message>
    <message>
        <source>Sheets and Alerts</source>
        <translation>Diálogos y avisos</translation>
    </message>
    <message>
        <source>The default button</source>
        <translation>El botón predeterminado</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Cancelar o cerrar</translation>
    </message>
    <message>
        <source>The next or previous field</source>
        <translation>El campo siguiente o anterior</translation>
    </message>
    <message>
        <source>In the preview of notes: check or uncheck the selected rows</source>
        <translation>En la vista previa de notas: marcar o desmarcar las filas seleccionadas</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparación</translation>
    </message>
    <message>
        <source>Zoom the strips in or out</source>
        <translation>Acercar o alejar las tiras</translation>
    </message>
    <message>
        <source>Show the whole cuts</source>
        <translation>Mostrar los montajes completos</translation>
    </message>
    <message>
        <source>Scroll the strips</source>
        <translation>Desplazarse por las tiras</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Cerrar la ventana</translation>
    </message>
    <message>
        <source>The menu of the table&apos;s header: its columns</source>
        <translation>El menú del encabezado de la tabla: sus columnas</translation>
    </message>
    <message>
        <source>Media Table</source>
        <translation>Tabla de medios</translation>
    </message>
    <message>
        <source>Open the file with its application</source>
        <translation>Abrir el archivo con su aplicación</translation>
    </message>
    <message>
        <source>Search Field</source>
        <translation>Campo de búsqueda</translation>
    </message>
    <message>
        <source>To the rows that were found</source>
        <translation>A las filas encontradas</translation>
    </message>
    <message>
        <source>Clear the search, then back to the table</source>
        <translation>Borrar la búsqueda, luego volver a la tabla</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Send to Premiere Pro</source>
        <translation>Enviar a Premiere Pro</translation>
    </message>
    <message>
        <source>Send to Final Cut Pro</source>
        <translation>Enviar a Final Cut Pro</translation>
    </message>
</context>
<context>
    <name>MarkerListPanels</name>
    <message>
        <source>Final Cut Pro X XML files</source>
        <translation>Archivos XML de Final Cut Pro X</translation>
    </message>
    <message>
        <source>Marker lists</source>
        <translation>Listas de marcadores</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Importar marcadores</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Export Markers</source>
        <translation>Exportar marcadores</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
</context>
<context>
    <name>MarkerOffset</name>
    <message>
        <source>Timecodes count at %1 frames per second, without drop frame.</source>
        <translation>Los códigos de tiempo cuentan a %1 fotogramas por segundo, sin drop frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row, without drop frame.</source>
        <translation>Los códigos de tiempo cuentan a %1 fotogramas por segundo, la velocidad de la primera fila de la tabla, sin drop frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row (%2), without drop frame.</source>
        <translation>Los códigos de tiempo cuentan a %1 fotogramas por segundo, la velocidad de la primera fila de la tabla (%2), sin drop frame.</translation>
    </message>
    <message>
        <source>%1 frame</source>
        <translation>%1 fotograma</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 fotogramas</translation>
    </message>
    <message>
        <source>%1: “%2” moves from %3 to %4.</source>
        <translation>%1: «%2» pasa de %3 a %4.</translation>
    </message>
    <message>
        <source>This is not a whole number of frames.</source>
        <translation>No es un número entero de fotogramas.</translation>
    </message>
    <message>
        <source>This is before the start.</source>
        <translation>Es anterior al comienzo.</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Unable to load project</source>
        <translation>No se puede cargar el proyecto</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 is not installed on this system.</source>
        <translation>Final Cut Pro 7 no está instalado en este sistema.</translation>
    </message>
    <message>
        <source>Final Cut Pro gave no XML of the project.</source>
        <translation>Final Cut Pro no entregó ningún XML del proyecto.</translation>
    </message>
    <message>
        <source>An internal error ended the loading; the log tells more.</source>
        <translation>Un error interno interrumpió la carga; el registro da más detalles.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged and was repaired while it was opened (%2).</source>
        <translation>El archivo «%1» está dañado y se reparó al abrirlo (%2).</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was not read whole.</source>
        <translation>El archivo «%1» no se leyó completo.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no editing project: %2. Nothing in it can be shown.</source>
        <translation>El archivo «%1» no es un proyecto de edición: %2. No se puede mostrar nada de él.</translation>
    </message>
    <message>
        <source>its element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>su elemento «%1» está en el espacio de nombres «%2», y los de un proyecto no están en ninguno</translation>
    </message>
    <message>
        <source>its root element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>su elemento raíz «%1» está en el espacio de nombres «%2», y los de un proyecto no están en ninguno</translation>
    </message>
    <message>
        <source>its root element is &quot;%1&quot; instead of &quot;xmeml&quot;</source>
        <translation>su elemento raíz es «%1» en vez de «xmeml»</translation>
    </message>
    <message>
        <source>Not all that the project holds could be listed; the log tells why.</source>
        <translation>No se pudo listar todo lo que contiene el proyecto; el registro indica el motivo.</translation>
    </message>
    <message>
        <source>The project could not be written.</source>
        <translation>No se pudo escribir el proyecto.</translation>
    </message>
    <message>
        <source>The project is being saved already.</source>
        <translation>El proyecto ya se está guardando.</translation>
    </message>
    <message>
        <source>The project is being sent already.</source>
        <translation>El proyecto ya se está enviando.</translation>
    </message>
    <message>
        <source>The project is sent to Final Cut Pro instead of being saved.</source>
        <translation>El proyecto se envía a Final Cut Pro en vez de guardarse.</translation>
    </message>
    <message>
        <source>There is no project to save.</source>
        <translation>No hay ningún proyecto que guardar.</translation>
    </message>
    <message>
        <source>The repaired file was not overwritten.</source>
        <translation>El archivo reparado no se sobrescribió.</translation>
    </message>
    <message>
        <source>Saving was cancelled.</source>
        <translation>Se canceló el guardado.</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. It was not overwritten.</source>
        <translation>Otro programa modificó el archivo desde que se abrió. No se sobrescribió.</translation>
    </message>
    <message>
        <source>The project is being saved or sent and was left as it is. Please try again when that is over.</source>
        <translation>El proyecto se está guardando o enviando y se dejó como estaba. Inténtelo de nuevo cuando termine.</translation>
    </message>
    <message>
        <source>This file was repaired when it was opened</source>
        <translation>Este archivo se reparó al abrirlo</translation>
    </message>
    <message>
        <source>Saving replaces the damaged file with the repaired project. Do you want to save it?</source>
        <translation>Al guardar, el archivo dañado se reemplaza por el proyecto reparado. ¿Desea guardarlo?</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was changed by another program since it was opened</source>
        <translation>Otro programa modificó el archivo «%1» desde que se abrió</translation>
    </message>
    <message>
        <source>Overwriting the file loses what the other program saved. Do you want to overwrite it?</source>
        <translation>Al sobrescribir el archivo se pierde lo que guardó el otro programa. ¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Content is missing: %1, and %2 left out behind that.</source>
        <translation>Falta contenido: %1, y detrás de eso %2.</translation>
    </message>
    <message>
        <source>Content is missing: %1 in a comment or instruction that does not end where it should.</source>
        <translation>Falta contenido: %1 en un comentario o una instrucción que no termina donde debe.</translation>
    </message>
    <message>
        <source>Content is missing from its place: the tags do not match, so elements near or behind line %1 may be outside of those that they belong to.</source>
        <translation>Hay contenido fuera de su sitio: las etiquetas no concuerdan, de modo que los elementos cercanos o posteriores a la línea %1 pueden estar fuera de aquellos a los que pertenecen.</translation>
    </message>
    <message>
        <source>Content is missing: &quot;&amp;&quot; or &quot;&lt;&quot; is no reference or tag in %1, the first on line %2.</source>
        <translation>Falta contenido: «&amp;» o «&lt;» no es ninguna referencia ni etiqueta en %1, primero en la línea %2.</translation>
    </message>
    <message>
        <source>Content is missing: %1, and what follows is no part of the project.</source>
        <translation>Falta contenido: %1, y lo que sigue no forma parte del proyecto.</translation>
    </message>
    <message>
        <source>Content is missing: the entities that the document type declares are not kept.</source>
        <translation>Falta contenido: las entidades que declara el tipo de documento no se conservan.</translation>
    </message>
    <message>
        <source>Content is missing: %1, but the file ends in the middle of an element.</source>
        <translation>Falta contenido: %1, pero el archivo termina en medio de un elemento.</translation>
    </message>
    <message>
        <source>Content is missing: %1.</source>
        <translation>Falta contenido: %1.</translation>
    </message>
    <message>
        <source>all %1 bytes could be read</source>
        <translation>se pudieron leer los %1 bytes</translation>
    </message>
    <message>
        <source>%1 of %2 bytes could be read</source>
        <translation>se pudieron leer %1 de %2 bytes</translation>
    </message>
    <message>
        <source>1 element was</source>
        <translation>se omitió 1 elemento</translation>
    </message>
    <message>
        <source>%1 elements were</source>
        <translation>se omitieron %1 elementos</translation>
    </message>
    <message>
        <source>1 element is</source>
        <translation>hay 1 elemento</translation>
    </message>
    <message>
        <source>%1 elements are</source>
        <translation>hay %1 elementos</translation>
    </message>
    <message>
        <source>1 place</source>
        <translation>1 lugar</translation>
    </message>
    <message>
        <source>%1 places</source>
        <translation>%1 lugares</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened as a project: %2</source>
        <translation>El archivo «%1» no se puede abrir como proyecto: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>El archivo «%1» no existe.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>El archivo «%1» no se puede abrir: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>El archivo «%1» no se puede leer: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a project file.</source>
        <translation>«%1» es una carpeta, no un archivo de proyecto.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>El archivo «%1» está vacío.</translation>
    </message>
    <message>
        <source>there is not enough memory to read it.</source>
        <translation>no hay memoria suficiente para leerlo.</translation>
    </message>
    <message>
        <source>There is not enough memory to read it.</source>
        <translation>No hay memoria suficiente para leerlo.</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation>no hay en él nada legible</translation>
    </message>
    <message>
        <source>loading was cancelled.</source>
        <translation>se canceló la carga.</translation>
    </message>
    <message>
        <source>reading it failed before its end.</source>
        <translation>la lectura falló antes de su final.</translation>
    </message>
    <message>
        <source>its elements are nested more than %1 deep.</source>
        <translation>sus elementos están anidados a más de %1 niveles.</translation>
    </message>
    <message>
        <source>its document type lists more values than can be read.</source>
        <translation>su tipo de documento enumera más valores de los que se pueden leer.</translation>
    </message>
    <message>
        <source>a comment in it has more double hyphens than can be read.</source>
        <translation>un comentario de él tiene más guiones dobles de los que se pueden leer.</translation>
    </message>
    <message>
        <source>it is not well-formed XML (%1).</source>
        <translation>no es XML bien formado (%1).</translation>
    </message>
    <message>
        <source>it holds no XML root element (%1).</source>
        <translation>no contiene ningún elemento raíz XML (%1).</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>The text is no XML element.</source>
        <translation>El texto no es un elemento XML.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>No se pudo escribir el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read: %2.</source>
        <translation>No se pudo leer el archivo «%1»: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read. %2</source>
        <translation>No se pudo leer el archivo «%1». %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>No se pudo crear la carpeta «%1».</translation>
    </message>
    <message>
        <source>Writing was cancelled.</source>
        <translation>Se canceló la escritura.</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>The property list is damaged: %1.</source>
        <translation>La lista de propiedades está dañada: %1.</translation>
    </message>
    <message>
        <source>The property list could not be written.</source>
        <translation>No se pudo escribir la lista de propiedades.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>No se pudo iniciar %1: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: too many open files</source>
        <translation>No se pudo iniciar %1: demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>%1 was given up.</source>
        <translation>Se abandonó %1.</translation>
    </message>
    <message>
        <source>%1 did not finish within %2 seconds.</source>
        <translation>%1 no terminó en %2 segundos.</translation>
    </message>
    <message>
        <source>%1 ended unexpectedly.</source>
        <translation>%1 terminó de forma inesperada.</translation>
    </message>
    <message>
        <source>A temporary file could not be written: %1.</source>
        <translation>No se pudo escribir un archivo temporal: %1.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>no existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>operación no permitida</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>no queda espacio en el disco</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>error de entrada/salida</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>el archivo ya existe</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nombre de archivo demasiado largo</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>demasiados enlaces simbólicos</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>cuota de disco superada</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>archivo demasiado grande</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>dispositivo ocupado</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>conexión rechazada</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>error desconocido</translation>
    </message>
    <message>
        <source>Unable to add marker</source>
        <translation>No se puede añadir el marcador</translation>
    </message>
    <message>
        <source>You need at least one sequence in your project in order to add a marker.</source>
        <translation>Para añadir un marcador, el proyecto debe tener al menos una secuencia.</translation>
    </message>
    <message>
        <source>Unable to create marker</source>
        <translation>No se puede crear el marcador</translation>
    </message>
    <message>
        <source>Unable to remove marker</source>
        <translation>No se puede quitar el marcador</translation>
    </message>
    <message>
        <source>Unable to change setting</source>
        <translation>No se puede cambiar el ajuste</translation>
    </message>
    <message>
        <source>XML document cannot be found.</source>
        <translation>No se encuentra el documento XML.</translation>
    </message>
    <message>
        <source>It was removed from the project.</source>
        <translation>Se quitó del proyecto.</translation>
    </message>
    <message>
        <source>An internal error occurred; the log tells more.</source>
        <translation>Se produjo un error interno; el registro da más detalles.</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this marker?</source>
        <translation>¿Seguro que desea quitar este marcador?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these markers?</source>
        <translation>¿Seguro que desea quitar estos marcadores?</translation>
    </message>
    <message>
        <source>The name or comment holds XML markup.</source>
        <translation>El nombre o el comentario contiene marcas XML.</translation>
    </message>
    <message>
        <source>The title &quot;%1&quot; would give the identifier %2, which the field &quot;%3&quot; has.</source>
        <translation>El título «%1» daría el identificador %2, que ya tiene el campo «%3».</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; has the identifier %2 already.</source>
        <translation>El campo «%1» ya tiene el identificador %2.</translation>
    </message>
    <message>
        <source>%1 of %2 markers is listed under another sequence or clip than their own.</source>
        <translation>%1 de %2 marcadores aparece en otra secuencia u otro clip que los suyos.</translation>
    </message>
    <message>
        <source>%1 of %2 markers are listed under another sequence or clip than their own.</source>
        <translation>%1 de %2 marcadores aparecen en otra secuencia u otro clip que los suyos.</translation>
    </message>
    <message>
        <source>No name specified</source>
        <translation>No se indicó ningún nombre</translation>
    </message>
    <message>
        <source>Please choose a name for this preset.</source>
        <translation>Elija un nombre para este preajuste.</translation>
    </message>
    <message>
        <source>Unable to create preset</source>
        <translation>No se puede crear el preajuste</translation>
    </message>
    <message>
        <source>Unable to delete preset</source>
        <translation>No se puede eliminar el preajuste</translation>
    </message>
    <message>
        <source>Please ensure your permissions are correct for the directory %1</source>
        <translation>Compruebe que tiene los permisos correctos para la carpeta %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; contains a slash, which separates folders.</source>
        <translation>El nombre «%1» contiene una barra, que separa carpetas.</translation>
    </message>
    <message>
        <source>The name contains a character that the name of a file cannot contain.</source>
        <translation>El nombre contiene un carácter que no puede figurar en el nombre de un archivo.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un preajuste necesita un nombre.</translation>
    </message>
    <message>
        <source>There are no presets.</source>
        <translation>No hay preajustes.</translation>
    </message>
    <message>
        <source>There is a preset named &quot;%1&quot; already.</source>
        <translation>Ya hay un preajuste llamado «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2.</source>
        <translation>No se pudo cambiar el nombre de «%1»: %2.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>¿Eliminar el preajuste «%1»?</translation>
    </message>
    <message>
        <source>Its labels will be lost. Markers keep their colors.</source>
        <translation>Se perderán sus etiquetas. Los marcadores conservan sus colores.</translation>
    </message>
    <message>
        <source>This preset already exists</source>
        <translation>Este preajuste ya existe</translation>
    </message>
    <message>
        <source>Would you like to overwrite it?</source>
        <translation>¿Desea sobrescribirlo?</translation>
    </message>
    <message>
        <source>Unable to remove effect</source>
        <translation>No se puede quitar el efecto</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this effect?</source>
        <translation>¿Seguro que desea quitar este efecto?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these effects?</source>
        <translation>¿Seguro que desea quitar estos efectos?</translation>
    </message>
    <message>
        <source>%1 item</source>
        <translation>%1 elemento</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>%1 item (%2 selected)</source>
        <translation>%1 elemento (%2 seleccionados)</translation>
    </message>
    <message>
        <source>%1 items (%2 selected)</source>
        <translation>%1 elementos (%2 seleccionados)</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Tamaño total: %1</translation>
    </message>
    <message>
        <source>Total number of files: %1</source>
        <translation>Número total de archivos: %1</translation>
    </message>
    <message>
        <source>Total size of filtered media: %1</source>
        <translation>Tamaño total de los medios filtrados: %1</translation>
    </message>
    <message>
        <source>Number of filtered media files: %1</source>
        <translation>Número de archivos de medios filtrados: %1</translation>
    </message>
    <message>
        <source>Largest file: Unknown</source>
        <translation>Archivo más grande: desconocido</translation>
    </message>
    <message>
        <source>Smallest file: Unknown</source>
        <translation>Archivo más pequeño: desconocido</translation>
    </message>
    <message>
        <source>Largest file: %1 (%2)</source>
        <translation>Archivo más grande: %1 (%2)</translation>
    </message>
    <message>
        <source>Smallest file: %1 (%2)</source>
        <translation>Archivo más pequeño: %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” is on a volume that does not answer. Check its connection</source>
        <translation>«%1» está en un volumen que no responde. Compruebe su conexión</translation>
    </message>
    <message>
        <source>“%1” is missing from “%2”. Media ▸ Relink… finds it in other folders</source>
        <translation>«%1» falta en «%2». Medios ▸ Revincular… lo encuentra en otras carpetas</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>No hay ningún archivo seleccionado. Haga clic antes en su fila</translation>
    </message>
    <message>
        <source>There is no file browser that could show the file</source>
        <translation>No hay ningún gestor de archivos que pueda mostrar el archivo</translation>
    </message>
    <message>
        <source>There is no program that could open the file. The system’s settings tell which program opens files of its kind</source>
        <translation>No hay ningún programa que pueda abrir el archivo. Los ajustes del sistema indican qué programa abre los archivos de este tipo</translation>
    </message>
    <message>
        <source>The project names no valid place for this file. Connect it again in the editing application</source>
        <translation>El proyecto no indica ningún lugar válido para este archivo. Vuelva a conectarlo en el programa de edición</translation>
    </message>
    <message>
        <source>The media files cannot be relinked now.</source>
        <translation>Los archivos de medios no se pueden revincular ahora.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot stand in an XML file.</source>
        <translation>El nombre «%1» no puede figurar en un archivo XML.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list.</source>
        <translation>El archivo «%1» no es una lista de hashes de medios.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read</source>
        <translation>%1 de %2, %3 archivos leídos</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read, %4:%5:%6 left</source>
        <translation>%1 de %2, %3 archivos leídos, quedan %4:%5:%6</translation>
    </message>
    <message>
        <source>Error saving marker list</source>
        <translation>Error al guardar la lista de marcadores</translation>
    </message>
    <message>
        <source>1 row holds a tab or a line break; other systems will not be able to read it</source>
        <translation>1 fila contiene un tabulador o un salto de línea; otros sistemas no podrán leerla</translation>
    </message>
    <message>
        <source>%1 rows hold a tab or a line break; other systems will not be able to read them</source>
        <translation>%1 filas contienen un tabulador o un salto de línea; otros sistemas no podrán leerlas</translation>
    </message>
    <message>
        <source>No markers to import</source>
        <translation>No hay marcadores que importar</translation>
    </message>
    <message>
        <source>There were no markers in the file or it is an invalid format.</source>
        <translation>El archivo no contiene marcadores o su formato no es válido.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the markers of the file.</source>
        <translation>No hay memoria suficiente para leer los marcadores del archivo.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the list.</source>
        <translation>No hay memoria suficiente para leer la lista.</translation>
    </message>
    <message>
        <source>%1 of %2 rows could not be added</source>
        <translation>No se pudieron añadir %1 de %2 filas</translation>
    </message>
    <message>
        <source>line %1, “%2”: %3</source>
        <translation>línea %1, «%2»: %3</translation>
    </message>
    <message>
        <source>marker %1, “%2”: %3</source>
        <translation>marcador %1, «%2»: %3</translation>
    </message>
    <message>
        <source>%1, line %2, “%3”: %4</source>
        <translation>%1, línea %2, «%3»: %4</translation>
    </message>
    <message>
        <source>%1, marker %2, “%3”: %4</source>
        <translation>%1, marcador %2, «%3»: %4</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… y %1 más</translation>
    </message>
    <message>
        <source>There is no sequence to add it to.</source>
        <translation>No hay ninguna secuencia a la que añadirlo.</translation>
    </message>
    <message>
        <source>Markers are still loading</source>
        <translation>Los marcadores aún se están cargando</translation>
    </message>
    <message>
        <source>Please wait for markers to finish loading before attempting this operation.</source>
        <translation>Espere a que terminen de cargarse los marcadores antes de intentar esta operación.</translation>
    </message>
    <message>
        <source>The file is not a text.</source>
        <translation>El archivo no es un texto.</translation>
    </message>
    <message>
        <source>The JSON is damaged: %1.</source>
        <translation>El JSON está dañado: %1.</translation>
    </message>
    <message>
        <source>There is no time.</source>
        <translation>No se indica ningún tiempo.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Columna %1</translation>
    </message>
    <message>
        <source>“%1” is no time.</source>
        <translation>«%1» no es un tiempo.</translation>
    </message>
    <message>
        <source>There are %1 fields instead of five to eight.</source>
        <translation>Hay %1 campos en vez de entre cinco y ocho.</translation>
    </message>
    <message>
        <source>%1 frames a second have no “%2”.</source>
        <translation>«%2» no existe a %1 fotogramas por segundo.</translation>
    </message>
    <message>
        <source>A bar was replaced by a slash in %1.</source>
        <translation>Una barra vertical se reemplazó por una barra oblicua en %1.</translation>
    </message>
    <message>
        <source>Times are cut to whole seconds.</source>
        <translation>Los tiempos se recortan a segundos enteros.</translation>
    </message>
    <message>
        <source>The duration of %1 is left out.</source>
        <translation>Se omite la duración de %1.</translation>
    </message>
    <message>
        <source>The colour of %1 is replaced by the nearest.</source>
        <translation>El color de %1 se reemplaza por el más parecido.</translation>
    </message>
    <message>
        <source>Tabs and line breaks are blanks in %1.</source>
        <translation>Los tabuladores y saltos de línea pasan a ser espacios en %1.</translation>
    </message>
    <message>
        <source>The comment of %1 is left out.</source>
        <translation>Se omite el comentario de %1.</translation>
    </message>
    <message>
        <source>The custom fields of %1 are left out.</source>
        <translation>Se omiten los campos personalizados de %1.</translation>
    </message>
    <message>
        <source>Colours are left out.</source>
        <translation>Se omiten los colores.</translation>
    </message>
    <message>
        <source>The timecodes of several frame rates stand in one list.</source>
        <translation>Los códigos de tiempo de varias velocidades de fotogramas figuran en una misma lista.</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 marcador</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marcadores</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 texto</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 textos</translation>
    </message>
    <message>
        <source>Sending to Final Cut Pro...</source>
        <translation>Enviando a Final Cut Pro…</translation>
    </message>
    <message>
        <source>Sending to Premiere Pro...</source>
        <translation>Enviando a Premiere Pro…</translation>
    </message>
    <message>
        <source>No changes to send to Final Cut Pro</source>
        <translation>No hay cambios que enviar a Final Cut Pro</translation>
    </message>
    <message>
        <source>Vantrell only sends modified sequences to Final Cut Pro and no sequences have been changed yet.</source>
        <translation>Vantrell solo envía a Final Cut Pro las secuencias modificadas y aún no se ha cambiado ninguna.</translation>
    </message>
    <message>
        <source>Changes successfully sent to Final Cut Pro</source>
        <translation>Los cambios se enviaron a Final Cut Pro</translation>
    </message>
    <message>
        <source>Sequences have been duplicated and placed inside the Vantrell bin.</source>
        <translation>Las secuencias se duplicaron y se colocaron en el contenedor Vantrell.</translation>
    </message>
    <message>
        <source>Unable to send to Final Cut Pro</source>
        <translation>No se puede enviar a Final Cut Pro</translation>
    </message>
    <message>
        <source>Unable to send to Premiere Pro</source>
        <translation>No se puede enviar a Premiere Pro</translation>
    </message>
    <message>
        <source>An error occurred while sending data.</source>
        <translation>Se produjo un error al enviar los datos.</translation>
    </message>
    <message>
        <source>Project successfully sent to Premiere Pro</source>
        <translation>El proyecto se envió a Premiere Pro</translation>
    </message>
    <message>
        <source>A duplicate project has been created.</source>
        <translation>Se creó un proyecto duplicado.</translation>
    </message>
    <message>
        <source>There is no project to send.</source>
        <translation>No hay ningún proyecto que enviar.</translation>
    </message>
    <message>
        <source>Premiere Pro now configured</source>
        <translation>Premiere Pro ya está configurado</translation>
    </message>
    <message>
        <source>Please close and relaunch Adobe Premiere Pro in order to use it with this application.</source>
        <translation>Cierre y vuelva a abrir Adobe Premiere Pro para usarlo con este programa.</translation>
    </message>
    <message>
        <source>Critical error: unable to load FCP project loader dialog.</source>
        <translation>Error crítico: no se puede cargar el diálogo de carga de proyectos de FCP.</translation>
    </message>
    <message>
        <source>You must reinstall the application.</source>
        <translation>Debe reinstalar el programa.</translation>
    </message>
    <message>
        <source>Error: unable to load About dialog.</source>
        <translation>Error: no se puede cargar el diálogo Acerca de.</translation>
    </message>
    <message>
        <source>Please report this error to Orvandel.</source>
        <translation>Informe de este error a Orvandel.</translation>
    </message>
    <message>
        <source>There are no rows to report.</source>
        <translation>No hay filas para el informe.</translation>
    </message>
    <message>
        <source>A PDF needs the package &quot;vantrell-print&quot;, which is not installed.</source>
        <translation>Para un PDF se necesita el paquete «vantrell-print», que no está instalado.</translation>
    </message>
    <message>
        <source>The PDF could not be made.</source>
        <translation>No se pudo crear el PDF.</translation>
    </message>
    <message>
        <source>The PDF could not be written: %1.</source>
        <translation>No se pudo escribir el PDF: %1.</translation>
    </message>
    <message>
        <source>The pages could not be put together: %1.</source>
        <translation>No se pudieron reunir las páginas: %1.</translation>
    </message>
    <message>
        <source>The report could not be loaded.</source>
        <translation>No se pudo cargar el informe.</translation>
    </message>
    <message>
        <source>The web engine ended too soon.</source>
        <translation>El motor web terminó demasiado pronto.</translation>
    </message>
    <message>
        <source>The web engine made no pages of the report.</source>
        <translation>El motor web no produjo ninguna página del informe.</translation>
    </message>
    <message>
        <source>The property list nests more than %1 levels.</source>
        <translation>La lista de propiedades tiene más de %1 niveles.</translation>
    </message>
    <message>
        <source>One of the effects was removed from the project.</source>
        <translation>Uno de los efectos se quitó del proyecto.</translation>
    </message>
    <message>
        <source>%1 of the effects were removed from the project.</source>
        <translation>%1 de los efectos se quitaron del proyecto.</translation>
    </message>
    <message>
        <source>Markers of %1 sequences and clips stand in one list.</source>
        <translation>Los marcadores de %1 secuencias y clips están en una misma lista.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>The line has %1 fields instead of %2.</source>
        <translation>La línea tiene %1 campos en lugar de %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list: %2</source>
        <translation>El archivo «%1» no es una lista de hashes de medios: %2</translation>
    </message>
</context>
<context>
    <name>PrintPlugin</name>
    <message>
        <source>Printing needs the package “vantrell-print”, which is not installed.</source>
        <translation>Para imprimir se necesita el paquete «vantrell-print», que no está instalado.</translation>
    </message>
    <message>
        <source>The package “vantrell-print” does not fit this program: %1</source>
        <translation>El paquete «vantrell-print» no es compatible con este programa: %1</translation>
    </message>
</context>
<context>
    <name>ReplaceQuestion</name>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«%1» ya existe. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>What the file in “%1” contains will be lost.</source>
        <translation>Se perderá el contenido del archivo en «%1».</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
</context>
<context>
    <name>TimecodeEntry</name>
    <message>
        <source>An empty field</source>
        <translation>Un campo vacío</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3</source>
        <translation>%1 es %2, fotograma %3</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3 of %4</source>
        <translation>%1 es %2, fotograma %3 de %4</translation>
    </message>
    <message>
        <source>the sequence</source>
        <translation>la secuencia</translation>
    </message>
    <message>
        <source>This is before the start of %1 at %2.</source>
        <translation>Es anterior al comienzo de %1, en %2.</translation>
    </message>
    <message>
        <source>This is after the end of %1 at %2.</source>
        <translation>Es posterior al final de %1, en %2.</translation>
    </message>
    <message>
        <source>%1 is no duration</source>
        <translation>%1 no es una duración</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 fotograma</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 fotogramas</translation>
    </message>
    <message>
        <source>%1 is %2, %3, to %4</source>
        <translation>%1 es %2, %3, hasta %4</translation>
    </message>
    <message>
        <source>This ends after the end of %1 at %2.</source>
        <translation>Termina después del final de %1, en %2.</translation>
    </message>
    <message>
        <source>Only digits, colons, points and commas make a timecode.</source>
        <translation>Un código de tiempo solo lleva dígitos, dos puntos, puntos y comas.</translation>
    </message>
    <message>
        <source>Digits are missing between two separators; points count as zeros only at the end.</source>
        <translation>Faltan dígitos entre dos separadores; los puntos solo cuentan como ceros al final.</translation>
    </message>
    <message>
        <source>A digit is missing: fields after a colon need two.</source>
        <translation>Falta un dígito: los campos tras dos puntos necesitan dos.</translation>
    </message>
    <message>
        <source>There are too many digits; only the last eight count.</source>
        <translation>Hay demasiados dígitos; solo cuentan los ocho últimos.</translation>
    </message>
    <message>
        <source>Digits are missing: hours, minutes, seconds and frames are needed.</source>
        <translation>Faltan dígitos: se necesitan horas, minutos, segundos y fotogramas.</translation>
    </message>
    <message>
        <source>There are too many fields; only the first four count.</source>
        <translation>Hay demasiados campos; solo cuentan los cuatro primeros.</translation>
    </message>
    <message>
        <source>A digit is missing: each field needs two.</source>
        <translation>Falta un dígito: cada campo necesita dos.</translation>
    </message>
    <message>
        <source>Hours cannot exceed 23.</source>
        <translation>Las horas no pueden pasar de 23.</translation>
    </message>
    <message>
        <source>Minutes cannot exceed 59.</source>
        <translation>Los minutos no pueden pasar de 59.</translation>
    </message>
    <message>
        <source>Seconds cannot exceed 59.</source>
        <translation>Los segundos no pueden pasar de 59.</translation>
    </message>
    <message>
        <source>Frames cannot exceed %1 at this rate.</source>
        <translation>A esta velocidad, los fotogramas no pueden pasar de %1.</translation>
    </message>
    <message>
        <source>Drop-frame timecode leaves this number out.</source>
        <translation>El código de tiempo drop frame omite este número.</translation>
    </message>
</context>
<context>
    <name>Troubleshooting</name>
    <message>
        <source>Unable to show the log</source>
        <translation>No se puede mostrar el registro</translation>
    </message>
    <message>
        <source>There are no logs.</source>
        <translation>No hay registros.</translation>
    </message>
    <message>
        <source>There is no log yet, or no program to show it with.</source>
        <translation>Aún no hay registro o no hay ningún programa con que mostrarlo.</translation>
    </message>
    <message>
        <source>No helper program was run yet, or there is no program to show the log with.</source>
        <translation>Aún no se ha ejecutado ningún programa auxiliar o no hay ningún programa con que mostrar el registro.</translation>
    </message>
    <message>
        <source>The logs cannot be read.</source>
        <translation>No se pueden leer los registros.</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
</context>
<context>
    <name>UnsavedChanges</name>
    <message>
        <source>1 marker</source>
        <translation>1 marcador</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marcadores</translation>
    </message>
    <message>
        <source>1 effect</source>
        <translation>1 efecto</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 efectos</translation>
    </message>
    <message>
        <source>1 media file</source>
        <translation>1 archivo de medios</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 archivos de medios</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 cambio</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 cambios</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>rows</comment>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>changes to rows</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>changes in sequences</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>1 sequence</source>
        <translation>1 secuencia</translation>
    </message>
    <message>
        <source>%1 sequences</source>
        <translation>%1 secuencias</translation>
    </message>
</context>
<context>
    <name>UserManual</name>
    <message>
        <source>The user manual is not installed: there is no file “%1”</source>
        <translation>El manual de usuario no está instalado: no existe el archivo «%1»</translation>
    </message>
    <message>
        <source>There is no program that could show the manual. Open the file “%1” in a web browser</source>
        <translation>No hay ningún programa que pueda mostrar el manual. Abra el archivo «%1» en un navegador web</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>Movie Clip</source>
        <translation>Clip de vídeo</translation>
    </message>
    <message>
        <source>Audio Clip</source>
        <translation>Clip de audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generador</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transición</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Naranja</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquesa</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Morado</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Create preset...</source>
        <translation>Crear preajuste…</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Hueco</translation>
    </message>
    <message>
        <source>unused</source>
        <translation>sin usar</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>duplicado</translation>
    </message>
    <message>
        <source>still</source>
        <translation>imagen fija</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 fotogramas</translation>
    </message>
    <message>
        <source>same name</source>
        <translation>mismo nombre</translation>
    </message>
    <message>
        <source>other Unicode form</source>
        <translation>otra forma Unicode</translation>
    </message>
    <message>
        <source>other case</source>
        <translation>otras mayúsculas</translation>
    </message>
    <message>
        <source>other escapes</source>
        <translation>otras secuencias de escape</translation>
    </message>
    <message>
        <source>other duration</source>
        <translation>otra duración</translation>
    </message>
    <message>
        <source>other timecode</source>
        <translation>otro código de tiempo</translation>
    </message>
    <message>
        <source>other reel</source>
        <translation>otra bobina</translation>
    </message>
    <message>
        <source>other rate</source>
        <translation>otra velocidad</translation>
    </message>
    <message>
        <source>there</source>
        <translation>ya presente</translation>
    </message>
    <message>
        <source>carried</source>
        <translation>trasladado</translation>
    </message>
    <message>
        <source>nearest</source>
        <translation>aproximado</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>perdido</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Sin cambios</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Reemplazado</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Slipped</source>
        <translation>Deslizado</translation>
    </message>
    <message>
        <source>Trimmed</source>
        <translation>Recortado</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Quitado</translation>
    </message>
    <message>
        <source>%1 frames (%2 %)</source>
        <translation>%1 fotogramas (%2 %)</translation>
    </message>
</context>
<context>
    <name>WebEngine</name>
    <message>
        <source>This system keeps the web engine from locking up what it shows (it allows no user name spaces), so nothing is printed.</source>
        <translation>Este sistema impide que el motor web aísle lo que muestra (no permite espacios de nombres de usuario), por lo que no se imprime nada.</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>The page has no valid address</source>
        <translation>La página no tiene una dirección válida</translation>
    </message>
    <message>
        <source>“%1” is no web address. Edit ▸ Preferences… has the address of each help page.</source>
        <translation>«%1» no es una dirección web. En Editar ▸ Preferencias… está la dirección de cada página de ayuda.</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>No se puede mostrar la página</translation>
    </message>
    <message>
        <source>There is no browser to show it with: %1</source>
        <translation>No hay ningún navegador para mostrarla: %1</translation>
    </message>
</context>
<context>
    <name>vantrell::AboutPanel</name>
    <message>
        <source>Version %@</source>
        <translation>Versión %@</translation>
    </message>
    <message>
        <source>Media, effects and markers of an editing project.</source>
        <translation>Medios, efectos y marcadores de un proyecto de edición.</translation>
    </message>
    <message>
        <source>Made by Orvandel.</source>
        <translation>Hecho por Orvandel.</translation>
    </message>
    <message>
        <source>About Vantrell</source>
        <translation>Acerca de Vantrell</translation>
    </message>
</context>
<context>
    <name>vantrell::AppController</name>
    <message>
        <source>Browse for a Final Cut Pro 7 project or XML file</source>
        <translation>Buscar un proyecto o archivo XML de Final Cut Pro 7</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Proyectos y archivos XML de Final Cut Pro 7 (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>The sample project could not be copied: %1</source>
        <translation>No se pudo copiar el proyecto de ejemplo: %1</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>No se pudo abrir «%1».</translation>
    </message>
    <message>
        <source>Choose a folder for the logs</source>
        <translation>Elija una carpeta para los registros</translation>
    </message>
    <message>
        <source>The logs were gathered</source>
        <translation>Se reunieron los registros</translation>
    </message>
    <message>
        <source>Unable to gather the logs</source>
        <translation>No se pueden reunir los registros</translation>
    </message>
</context>
<context>
    <name>vantrell::CandidateDelegate</name>
    <message>
        <source>File to relink to</source>
        <translation>Archivo al que revincular</translation>
    </message>
</context>
<context>
    <name>vantrell::CarriedMarkerModel</name>
    <message>
        <source>no place left</source>
        <translation>sin lugar</translation>
    </message>
    <message>
        <source>added</source>
        <translation>añadido</translation>
    </message>
    <message>
        <source>It was added to the new cut.</source>
        <translation>Se añadió al montaje nuevo.</translation>
    </message>
    <message>
        <source>The new cut has this marker there already. It is not added again.</source>
        <translation>El montaje nuevo ya tiene ahí este marcador. No se añade de nuevo.</translation>
    </message>
    <message>
        <source>It goes to where its picture went.</source>
        <translation>Va adonde fue su imagen.</translation>
    </message>
    <message>
        <source>It goes near its picture, or to a place that has to be looked at.</source>
        <translation>Va cerca de su imagen, o a un lugar que conviene revisar.</translation>
    </message>
    <message>
        <source>Its picture is gone. Tick it, or enter a timecode under “New”, to add it nevertheless.</source>
        <translation>Su imagen ya no está. Márquelo, o escriba un código de tiempo en «Nuevo», para añadirlo de todos modos.</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangeTableModel</name>
    <message>
        <source>Old: %1, %2 to %3</source>
        <translation>Anterior: %1, de %2 a %3</translation>
    </message>
    <message>
        <source>New: %1, %2 to %3</source>
        <translation>Nuevo: %1, de %2 a %3</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangedFileSheet</name>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>Otro programa modificó «%1».</translation>
    </message>
    <message>
        <source>Someone else has saved it since you opened it. If you overwrite it, those changes are lost; if you reload it, yours are.</source>
        <translation>Alguien lo ha guardado después de que usted lo abriera. Si lo sobrescribe, se pierden esos cambios; si lo recarga, se pierden los suyos.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Sobrescribir</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareChoiceSheet</name>
    <message>
        <source>A project &amp;file</source>
        <translation>Un &amp;archivo de proyecto</translation>
    </message>
    <message>
        <source>An &amp;open project:</source>
        <translation>Un proyecto a&amp;bierto:</translation>
    </message>
    <message>
        <source>Another sequence of &amp;this project</source>
        <translation>Otra &amp;secuencia de este proyecto</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Compare this project with:</source>
        <translation>Comparar este proyecto con:</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Proyecto abierto</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>Co&amp;mparar</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareWindow</name>
    <message>
        <source>Compare Sequences of “%1”</source>
        <translation>Comparar secuencias de «%1»</translation>
    </message>
    <message>
        <source>Compare “%1” with “%2”</source>
        <translation>Comparar «%1» con «%2»</translation>
    </message>
    <message>
        <source>Old sequence</source>
        <translation>Secuencia anterior</translation>
    </message>
    <message>
        <source>New sequence</source>
        <translation>Secuencia nueva</translation>
    </message>
    <message>
        <source>&amp;Swap</source>
        <translation>&amp;Intercambiar</translation>
    </message>
    <message>
        <source>Make the old cut the new one</source>
        <translation>Convertir el montaje anterior en el nuevo</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>Comparar de &amp;nuevo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparando…</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Show all of both cuts</source>
        <translation>Mostrar por completo los dos montajes</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Markers of the old cut</source>
        <translation>Marcadores del montaje anterior</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>Marcar &amp;todos</translation>
    </message>
    <message>
        <source>Tick all markers that have a place</source>
        <translation>Marcar todos los marcadores que tienen un lugar</translation>
    </message>
    <message>
        <source>Tick &amp;None</source>
        <translation>&amp;Desmarcar todos</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;CSV for Spreadsheets…</source>
        <translation>&amp;CSV para hojas de cálculo…</translation>
    </message>
    <message>
        <source>&amp;HTML Page…</source>
        <translation>Página &amp;HTML…</translation>
    </message>
    <message>
        <source>&amp;EDL Text…</source>
        <translation>Texto &amp;EDL…</translation>
    </message>
    <message>
        <source>&amp;Add to This Project</source>
        <translation>&amp;Añadir a este proyecto</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Old cut:</source>
        <translation>Montaje anterior:</translation>
    </message>
    <message>
        <source>Old cut, in “%1”:</source>
        <translation>Montaje anterior, en «%1»:</translation>
    </message>
    <message>
        <source>New cut:</source>
        <translation>Montaje nuevo:</translation>
    </message>
    <message>
        <source>New cut, in “%1”:</source>
        <translation>Montaje nuevo, en «%1»:</translation>
    </message>
    <message>
        <source>The cuts were not compared.</source>
        <translation>No se compararon los montajes.</translation>
    </message>
    <message>
        <source>A project was changed since the cuts were compared.</source>
        <translation>Se modificó un proyecto después de comparar los montajes.</translation>
    </message>
    <message>
        <source>“%1” was closed or loaded again. To add markers or compare again, choose Compare with… once more.</source>
        <translation>«%1» se cerró o se cargó de nuevo. Para añadir marcadores o repetir la comparación, elija otra vez «Comparar con…».</translation>
    </message>
    <message>
        <source>1 marker added</source>
        <translation>1 marcador añadido</translation>
    </message>
    <message>
        <source>%1 markers added</source>
        <translation>%1 marcadores añadidos</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>No ha cambiado nada.</translation>
    </message>
    <message>
        <source>1 event has changed.</source>
        <translation>Ha cambiado 1 evento.</translation>
    </message>
    <message>
        <source>%1 events have changed.</source>
        <translation>Han cambiado %1 eventos.</translation>
    </message>
    <message>
        <source>Markers of the old cut: %1 carried, %2 nearest, %3 gone, %4 there; %5 ticked</source>
        <translation>Marcadores del montaje anterior: %1 trasladados, %2 aproximados, %3 perdidos, %4 ya presentes; %5 marcados</translation>
    </message>
    <message>
        <source>The old cut has no markers.</source>
        <translation>El montaje anterior no tiene marcadores.</translation>
    </message>
    <message>
        <source>Markers are added to the new cut, which is in “%1”. Swap the cuts if it is the old one, or open it and compare it with this project.</source>
        <translation>Los marcadores se añaden al montaje nuevo, que está en «%1». Intercambie los montajes si ese es el anterior, o ábralo y compárelo con este proyecto.</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Archivos CSV</translation>
    </message>
    <message>
        <source>HTML pages</source>
        <translation>Páginas HTML</translation>
    </message>
    <message>
        <source>Edit decision lists</source>
        <translation>Listas de decisiones de edición</translation>
    </message>
    <message>
        <source>Export Changes</source>
        <translation>Exportar cambios</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Changes exported to “%1”</source>
        <translation>Cambios exportados a «%1»</translation>
    </message>
    <message>
        <source>The changes could not be exported to “%1”.</source>
        <translation>No se pudieron exportar los cambios a «%1».</translation>
    </message>
    <message>
        <source>, %1 added</source>
        <translation>, %1 añadidos</translation>
    </message>
</context>
<context>
    <name>vantrell::ComparedProject</name>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>El archivo no es de un tipo que se pueda abrir.</translation>
    </message>
</context>
<context>
    <name>vantrell::CutStrips</name>
    <message>
        <source>Old and new cut</source>
        <translation>Montaje anterior y nuevo</translation>
    </message>
</context>
<context>
    <name>vantrell::DocumentWindow</name>
    <message>
        <source>Media</source>
        <translation>Medios</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>Show Each Under Its Own</source>
        <translation>Mostrar cada uno por separado</translation>
    </message>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>El archivo no es de un tipo que se pueda abrir.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown as it was.</source>
        <translation>No se puede mostrar «%1» tal como estaba.</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first.</source>
        <translation>El archivo está abierto en otra ventana. Cierre antes esa ventana.</translation>
    </message>
    <message>
        <source>None of the unsaved changes could be restored, as the project was changed since. They are offered again the next time.</source>
        <translation>No se pudo restaurar ninguno de los cambios sin guardar, porque el proyecto se modificó después. Se ofrecerán de nuevo la próxima vez.</translation>
    </message>
    <message>
        <source>1 unsaved change was restored.</source>
        <translation>Se restauró 1 cambio sin guardar.</translation>
    </message>
    <message>
        <source>%1 unsaved changes were restored.</source>
        <translation>Se restauraron %1 cambios sin guardar.</translation>
    </message>
    <message>
        <source>%1 of %2 unsaved changes were restored; the project was changed where the others belong.</source>
        <translation>Se restauraron %1 de %2 cambios sin guardar; el proyecto se modificó donde corresponden los demás.</translation>
    </message>
    <message>
        <source>Restored in part: %1.</source>
        <translation>Restaurados en parte: %1.</translation>
    </message>
    <message>
        <source>The file is as it was until you save.</source>
        <translation>El archivo sigue como estaba hasta que guarde.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>No se pudo abrir «%1».</translation>
    </message>
    <message>
        <source>Project files are read by way of Final Cut Pro 7, which gave no project. An XML export of it opens without.</source>
        <translation>Los archivos de proyecto se leen a través de Final Cut Pro 7, que no entregó ningún proyecto. Una exportación XML del proyecto se abre sin él.</translation>
    </message>
    <message>
        <source>%1 in Final Cut Pro</source>
        <translation>%1 en Final Cut Pro</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>project and program</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Listing markers…</source>
        <translation>Listando marcadores…</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparando…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>Esperando el volumen de «%1»…</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>El proyecto sigue abierto como está. Puede guardarlo en otro lugar.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>File ▸ Import Notes… adds its markers to an open project.</source>
        <translation>Archivo ▸ Importar notas… añade sus marcadores a un proyecto abierto.</translation>
    </message>
</context>
<context>
    <name>vantrell::EffectsPane</name>
    <message>
        <source>Show &amp;defaults</source>
        <translation>Mostrar &amp;predeterminados</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>All Effects</source>
        <translation>Todos los efectos</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Video Filters</source>
        <translation>Filtros de vídeo</translation>
    </message>
    <message>
        <source>Audio Filters</source>
        <translation>Filtros de audio</translation>
    </message>
    <message>
        <source>Generators</source>
        <translation>Generadores</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transiciones</translation>
    </message>
    <message>
        <source>Type of effects</source>
        <translation>Tipo de efectos</translation>
    </message>
    <message>
        <source>Show effects of one type only</source>
        <translation>Mostrar solo efectos de un tipo</translation>
    </message>
    <message>
        <source>Also show the effects that every clip has, such as Basic Motion and Opacity</source>
        <translation>Mostrar también los efectos que tienen todos los clips, como Basic Motion y Opacity</translation>
    </message>
    <message>
        <source>Remove the selected effects from the project</source>
        <translation>Quitar del proyecto los efectos seleccionados</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
    <message>
        <source>Show only effects whose name contains this text</source>
        <translation>Mostrar solo los efectos cuyo nombre contiene este texto</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efectos</translation>
    </message>
    <message>
        <source>An effect has nothing to open here. Its box switches it on and off, Remove… takes it out, and the editing application changes its settings</source>
        <translation>Un efecto no tiene nada que abrir aquí. Su casilla lo activa y desactiva, Quitar… lo elimina, y sus ajustes se cambian en la aplicación de edición</translation>
    </message>
    <message>
        <source>1 effect left the list, but is still in the project</source>
        <translation>1 efecto salió de la lista, pero sigue en el proyecto</translation>
    </message>
    <message>
        <source>%1 effects left the list, but are still in the project</source>
        <translation>%1 efectos salieron de la lista, pero siguen en el proyecto</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>%1 effect</source>
        <translation>%1 efecto</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 efectos</translation>
    </message>
    <message>
        <source>Looking for effects…</source>
        <translation>Buscando efectos…</translation>
    </message>
    <message>
        <source>Looking for effects: %1 so far…</source>
        <translation>Buscando efectos: %1 hasta ahora…</translation>
    </message>
    <message>
        <source>No effect is of this type.</source>
        <translation>Ningún efecto es de este tipo.</translation>
    </message>
    <message>
        <source>No effect of this type has a name with “%1”.</source>
        <translation>Ningún efecto de este tipo contiene «%1» en su nombre.</translation>
    </message>
    <message>
        <source>This project has no effects.</source>
        <translation>Este proyecto no tiene efectos.</translation>
    </message>
    <message>
        <source>Show Hidde&amp;n Effects</source>
        <translation>Mostrar efectos &amp;ocultos</translation>
    </message>
    <message>
        <source>The Delete key takes rows off this list only; View ▸ Show Hidden Effects lists them again. Edit ▸ Remove… removes the effects from the project.</source>
        <translation>La tecla Supr solo retira filas de esta lista; Ver ▸ Mostrar efectos ocultos las vuelve a listar. Editar ▸ Quitar… elimina los efectos del proyecto.</translation>
    </message>
    <message>
        <source>List the effects again that the Delete key has taken off the list</source>
        <translation>Volver a listar los efectos que la tecla Supr retiró de la lista</translation>
    </message>
    <message>
        <source>All effects were taken off this list. They are still in the project.</source>
        <translation>Todos los efectos se retiraron de esta lista. Siguen en el proyecto.</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>No se eliminó nada: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>No effect left the list: no row is selected</source>
        <translation>Ningún efecto salió de la lista: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>No effect has a name with “%1”.</source>
        <translation>Ningún efecto contiene «%1» en su nombre.</translation>
    </message>
    <message>
        <source>All effects of this project are default ones.</source>
        <translation>Todos los efectos de este proyecto son predeterminados.</translation>
    </message>
    <message>
        <source>“Show defaults” lists default effects as well.</source>
        <translation>«Mostrar predeterminados» muestra también los efectos predeterminados.</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportListSheet</name>
    <message>
        <source>Tables</source>
        <translation>Tablas</translation>
    </message>
    <message>
        <source>A table of the files, also the missing ones, for spreadsheet programs.</source>
        <translation>Una tabla de los archivos, incluidos los faltantes, para programas de hojas de cálculo.</translation>
    </message>
    <message>
        <source>Lists of paths</source>
        <translation>Listas de rutas</translation>
    </message>
    <message>
        <source>One path a line, for rsync --files-from with the source “/”. Missing files are left out.</source>
        <translation>Una ruta por línea, para rsync --files-from con el origen «/». Los archivos faltantes se omiten.</translation>
    </message>
    <message>
        <source>Paths that a NUL ends, for rsync --from0 --files-from with the source “/”. Missing files are left out.</source>
        <translation>Rutas terminadas en NUL, para rsync --from0 --files-from con el origen «/». Los archivos faltantes se omiten.</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Listas de hash de medios</translation>
    </message>
    <message>
        <source>Every file is read, which takes as long as copying it. A list that was cancelled goes on where it stopped when it is exported to the same file again. Files in the list’s folder are listed relative to it: keep it beside the media. Missing files are left out.</source>
        <translation>Se lee cada archivo, lo que tarda tanto como copiarlo. Una lista cancelada continúa donde se detuvo al exportarla de nuevo al mismo archivo. Los archivos de la carpeta de la lista figuran con rutas relativas a ella: guárdela junto a los medios. Los archivos faltantes se omiten.</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exportar lista</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tabla (CSV)</translation>
    </message>
    <message>
        <source>Paths for rsync</source>
        <translation>Rutas para rsync</translation>
    </message>
    <message>
        <source>Paths for rsync, separated by NUL</source>
        <translation>Rutas para rsync, separadas por NUL</translation>
    </message>
    <message>
        <source>Checksums (MHL, MD5 and xxHash64)</source>
        <translation>Sumas de verificación (MHL, MD5 y xxHash64)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Files on show</source>
        <translation>Archivos mostrados</translation>
    </message>
    <message>
        <source>Files used by “%1”</source>
        <translation>Archivos usados por «%1»</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Formato</translation>
    </message>
    <message>
        <source>F&amp;iles</source>
        <translation>&amp;Archivos</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportNotesSheet</name>
    <message>
        <source>Export Notes</source>
        <translation>Exportar notas</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
    <message>
        <source>&amp;Markers:</source>
        <translation>&amp;Marcadores:</translation>
    </message>
    <message>
        <source>Co&amp;lor:</source>
        <translation>Co&amp;lor:</translation>
    </message>
    <message>
        <source>Se&amp;quence:</source>
        <translation>&amp;Secuencia:</translation>
    </message>
    <message>
        <source>Fla&amp;g:</source>
        <translation>&amp;Indicador:</translation>
    </message>
    <message>
        <source>&amp;Containing:</source>
        <translation>Con el &amp;texto:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV para hojas de cálculo</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Texto separado por tabuladores</translation>
    </message>
    <message>
        <source>Markdown table</source>
        <translation>Tabla Markdown</translation>
    </message>
    <message>
        <source>Avid markers, six fields</source>
        <translation>Marcadores de Avid, seis campos</translation>
    </message>
    <message>
        <source>Avid markers with names, eight fields</source>
        <translation>Marcadores de Avid con nombres, ocho campos</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Marcadores de Resolve (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL con localizadores</translation>
    </message>
    <message>
        <source>Chapters for a video description</source>
        <translation>Capítulos para una descripción de vídeo</translation>
    </message>
    <message>
        <source>WebVTT</source>
        <translation>WebVTT</translation>
    </message>
    <message>
        <source>JSON for scripts</source>
        <translation>JSON para scripts</translation>
    </message>
    <message>
        <source>All markers (%1)</source>
        <translation>Todos los marcadores (%1)</translation>
    </message>
    <message>
        <source>Selected markers (%1)</source>
        <translation>Marcadores seleccionados (%1)</translation>
    </message>
    <message>
        <source>Shown markers (%1)</source>
        <translation>Marcadores mostrados (%1)</translation>
    </message>
    <message>
        <source>All colors</source>
        <translation>Todos los colores</translation>
    </message>
    <message>
        <source>All sequences</source>
        <translation>Todas las secuencias</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Cualquiera</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Musicalización</translation>
    </message>
    <message>
        <source>Col&amp;umns, in the order of the list:</source>
        <translation>Col&amp;umnas, en el orden de la lista:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Drag a column to another place</source>
        <translation>Arrastre una columna a otro lugar</translation>
    </message>
    <message>
        <source>1 marker will be exported.</source>
        <translation>Se exportará 1 marcador.</translation>
    </message>
    <message>
        <source>%1 markers will be exported.</source>
        <translation>Se exportarán %1 marcadores.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>custom field</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportReportSheet</name>
    <message>
        <source>Export Report</source>
        <translation>Exportar informe</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>Página HTML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV para hojas de cálculo</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Formato:</translation>
    </message>
</context>
<context>
    <name>vantrell::GoToTimecodeSheet</name>
    <message>
        <source>Go to Timecode</source>
        <translation>Ir a código de tiempo</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>Digits fill the timecode from the right; a full stop stands for two zeros</source>
        <translation>Los dígitos rellenan el código de tiempo desde la derecha; un punto equivale a dos ceros</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>Código de &amp;tiempo:</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>&amp;Secuencia:</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Ninguna secuencia</translation>
    </message>
    <message>
        <source>Goes to the marker that is nearest to the timecode, among those that are shown.</source>
        <translation>Va al marcador más próximo al código de tiempo entre los que se muestran.</translation>
    </message>
    <message>
        <source>Timecode %1.</source>
        <translation>Código de tiempo %1.</translation>
    </message>
    <message>
        <source>Nearest: a marker without a name at %1.</source>
        <translation>Más próximo: un marcador sin nombre en %1.</translation>
    </message>
    <message>
        <source>Nearest: “%1” at %2.</source>
        <translation>Más próximo: «%1» en %2.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::KeyboardHelp</name>
    <message>
        <source>No key does that.</source>
        <translation>Ninguna tecla hace eso.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Search keys and commands</source>
        <translation>Buscar teclas y comandos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
</context>
<context>
    <name>vantrell::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>Open &amp;Final Cut Pro Project…</source>
        <translation>Abrir proyecto de &amp;Final Cut Pro…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>G&amp;uardar como…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;vertir a lo guardado</translation>
    </message>
    <message>
        <source>Co&amp;mpare with…</source>
        <translation>Co&amp;mparar con…</translation>
    </message>
    <message>
        <source>Export C&amp;hanged Sequences…</source>
        <translation>Exportar &amp;secuencias modificadas…</translation>
    </message>
    <message>
        <source>Expor&amp;t Report…</source>
        <translation>Expor&amp;tar informe…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primir…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;lir</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message>
        <source>&amp;Final Cut Pro Markers…</source>
        <translation>Marcadores de &amp;Final Cut Pro…</translation>
    </message>
    <message>
        <source>&amp;Avid Locators…</source>
        <translation>Localizadores de &amp;Avid…</translation>
    </message>
    <message>
        <source>Final Cut Pro &amp;X Markers…</source>
        <translation>Marcadores de Final Cut Pro &amp;X…</translation>
    </message>
    <message>
        <source>Import &amp;Notes…</source>
        <translation>Importar &amp;notas…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportar</translation>
    </message>
    <message>
        <source>E&amp;xport Notes…</source>
        <translation>E&amp;xportar notas…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Pa&amp;ste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Go to Timecode…</source>
        <translation>&amp;Ir a código de tiempo…</translation>
    </message>
    <message>
        <source>Ne&amp;xt of Same Color</source>
        <translation>&amp;Siguiente del mismo color</translation>
    </message>
    <message>
        <source>Pre&amp;vious of Same Color</source>
        <translation>&amp;Anterior del mismo color</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation>Añadir &amp;marcador…</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>Mover &amp;entrada, conservar duración</translation>
    </message>
    <message>
        <source>R&amp;emove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>Mar&amp;ker Fields…</source>
        <translation>Camp&amp;os de marcador…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Crear prea&amp;juste de marcador…</translation>
    </message>
    <message>
        <source>Manage Marker Prese&amp;ts…</source>
        <translation>&amp;Gestionar preajustes de marcador…</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Prefere&amp;ncias…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Medios</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Efectos</translation>
    </message>
    <message>
        <source>Mar&amp;kers</source>
        <translation>Mar&amp;cadores</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>Marker &amp;Overview</source>
        <translation>Vista &amp;general de marcadores</translation>
    </message>
    <message>
        <source>&amp;Relink…</source>
        <translation>&amp;Revincular…</translation>
    </message>
    <message>
        <source>&amp;Path Mappings…</source>
        <translation>&amp;Asignaciones de rutas…</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>&amp;Exportar lista…</translation>
    </message>
    <message>
        <source>&amp;Verify List…</source>
        <translation>&amp;Verificar lista…</translation>
    </message>
    <message>
        <source>Show &amp;Uses</source>
        <translation>Mostrar &amp;usos</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Ve&amp;ntana</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Minimizar</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>No Project Is Open</source>
        <translation>No hay ningún proyecto abierto</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>User &amp;Manual</source>
        <translation>&amp;Manual de usuario</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Atajos de teclado</translation>
    </message>
    <message>
        <source>&amp;Halvex Home Page</source>
        <translation>Página web de &amp;Halvex</translation>
    </message>
    <message>
        <source>&amp;Orvandel Home Page</source>
        <translation>Página web de &amp;Orvandel</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Soporte</translation>
    </message>
    <message>
        <source>Report a &amp;Bug</source>
        <translation>&amp;Informar de un error</translation>
    </message>
    <message>
        <source>Suggest a &amp;Feature</source>
        <translation>Sugerir una &amp;función</translation>
    </message>
    <message>
        <source>&amp;Troubleshooting</source>
        <translation>Solución de &amp;problemas</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>Ver &amp;registro</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>Ver registro de &amp;tareas</translation>
    </message>
    <message>
        <source>&amp;Gather Logs…</source>
        <translation>Re&amp;unir registros…</translation>
    </message>
    <message>
        <source>Log &amp;Quality Control</source>
        <translation>Registrar &amp;control de calidad</translation>
    </message>
    <message>
        <source>About &amp;Vantrell</source>
        <translation>Acerca de &amp;Vantrell</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Vaciar menú</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>No sequence has been changed since the project was opened.</source>
        <translation>No se ha modificado ninguna secuencia desde que se abrió el proyecto.</translation>
    </message>
    <message>
        <source>Choose from the projects that are open in Final Cut Pro</source>
        <translation>Elegir entre los proyectos abiertos en Final Cut Pro</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running. Start it and open a project in it first.</source>
        <translation>Final Cut Pro no se está ejecutando. Inícielo y abra antes un proyecto en él.</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>Co&amp;lumnas</translation>
    </message>
    <message>
        <source>Show &amp;Hidden Effects</source>
        <translation>Mo&amp;strar efectos ocultos</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>Despla&amp;zar…</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerAddSheet</name>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Añadir marcador</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>&amp;Secuencia:</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>Código de &amp;tiempo:</translation>
    </message>
    <message>
        <source>&amp;Duration:</source>
        <translation>D&amp;uración:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nombre:</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>Co&amp;mentario:</translation>
    </message>
    <message>
        <source>C&amp;olor:</source>
        <translation>C&amp;olor:</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerFieldsSheet</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Marker Fields</source>
        <translation>Campos de marcador</translation>
    </message>
    <message>
        <source>Marker fields</source>
        <translation>Campos de marcador</translation>
    </message>
    <message>
        <source>Each field is a column of the marker table. What you type there is kept in the marker’s comment, under the identifier.</source>
        <translation>Cada campo es una columna de la tabla de marcadores. Lo que escriba en ella se guarda en el comentario del marcador, bajo el identificador.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Listo</translation>
    </message>
    <message>
        <source>⚠ %1 It was left as it was.</source>
        <translation>⚠ %1 Se dejó como estaba.</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOffsetSheet</name>
    <message>
        <source>Offset Markers</source>
        <translation>Desplazar marcadores</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers &amp;by:</source>
        <translation>Mover los puntos de entrada de los marcadores seleccionados e&amp;n:</translation>
    </message>
    <message>
        <source>Frames, such as 12 or -12, or a timecode, such as 00:00:01:00 or -1:00.</source>
        <translation>Fotogramas, como 12 o -12, o un código de tiempo, como 00:00:01:00 o -1:00.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOverviewPanel</name>
    <message>
        <source>Sequence of the overview</source>
        <translation>Secuencia de la vista general</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Ninguna secuencia</translation>
    </message>
    <message>
        <source>%1
Choose the sequence of the overview, or let it follow the selected row</source>
        <translation>%1
Elija la secuencia de la vista general o deje que siga la fila seleccionada</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Sequence of the Selected Row</source>
        <translation>Secuencia de la fila seleccionada</translation>
    </message>
    <message>
        <source>“%1” is hidden by the filter</source>
        <translation>El filtro oculta «%1»</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetSheet</name>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Label of %1</source>
        <translation>Etiqueta de %1</translation>
    </message>
    <message>
        <source>Create Marker Preset</source>
        <translation>Crear preajuste de marcador</translation>
    </message>
    <message>
        <source>Preset &amp;name:</source>
        <translation>&amp;Nombre del preajuste:</translation>
    </message>
    <message>
        <source>Labels of the colors</source>
        <translation>Etiquetas de los colores</translation>
    </message>
    <message>
        <source>The labels stand for the colors in the filter and in the table.</source>
        <translation>Las etiquetas representan los colores en el filtro y en la tabla.</translation>
    </message>
    <message>
        <source>Edit Marker Preset</source>
        <translation>Editar preajuste de marcador</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetsSheet</name>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>Marker Presets</source>
        <translation>Preajustes de marcador</translation>
    </message>
    <message>
        <source>Marker presets</source>
        <translation>Preajustes de marcador</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Listo</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>There are no presets yet.
Edit ▸ Create Marker Preset… makes one, as does “%1” in the pop-up “Preset” above the markers.</source>
        <translation>Todavía no hay preajustes.
Editar ▸ Crear preajuste de marcador… crea uno, igual que «%1» en el menú «Preajuste» sobre los marcadores.</translation>
    </message>
    <message>
        <source>Edit &amp;Labels…</source>
        <translation>Editar e&amp;tiquetas…</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerStrip</name>
    <message>
        <source>Marker overview</source>
        <translation>Vista general de marcadores</translation>
    </message>
    <message>
        <source>Left and Right select the previous and the next marker. Plus and minus zoom, 0 shows all.</source>
        <translation>Izquierda y Derecha seleccionan el marcador anterior y el siguiente. Más y menos acercan y alejan; 0 lo muestra todo.</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message>
        <source>%1, duration %2</source>
        <translation>%1, duración %2</translation>
    </message>
    <message>
        <source>on the clip “%1”</source>
        <translation>en el clip «%1»</translation>
    </message>
    <message>
        <source>outside the sequence</source>
        <translation>fuera de la secuencia</translation>
    </message>
    <message>
        <source>hidden by the filter</source>
        <translation>oculto por el filtro</translation>
    </message>
    <message>
        <source>and %1 more here</source>
        <translation>y %1 más aquí</translation>
    </message>
    <message>
        <source>%1
%2 – %3</source>
        <translation>%1
%2 – %3</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Ninguna secuencia</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerTableModel</name>
    <message>
        <source>%1; the duration is kept</source>
        <translation>%1; se conserva la duración</translation>
    </message>
    <message>
        <source>On the clip “%1”, which is in no sequence</source>
        <translation>En el clip «%1», que no está en ninguna secuencia</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkersPane</name>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>Añad&amp;ir…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>Despla&amp;zar…</translation>
    </message>
    <message>
        <source>Fie&amp;lds…</source>
        <translation>&amp;Campos…</translation>
    </message>
    <message>
        <source>Own se&amp;quence and clip</source>
        <translation>&amp;Secuencia y clip propios</translation>
    </message>
    <message>
        <source>All Colors</source>
        <translation>Todo color</translation>
    </message>
    <message>
        <source>Color of markers</source>
        <translation>Color de los marcadores</translation>
    </message>
    <message>
        <source>Show markers of one color only</source>
        <translation>Mostrar solo los marcadores de un color</translation>
    </message>
    <message>
        <source>Add a marker to the first sequence</source>
        <translation>Añadir un marcador a la primera secuencia</translation>
    </message>
    <message>
        <source>Add a marker to a sequence and at a timecode of your choice</source>
        <translation>Añadir un marcador a la secuencia y en el código de tiempo que elija</translation>
    </message>
    <message>
        <source>Add at a sequence and timecode</source>
        <translation>Añadir en una secuencia y un código de tiempo</translation>
    </message>
    <message>
        <source>Remove the selected markers from the project</source>
        <translation>Quitar del proyecto los marcadores seleccionados</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers</source>
        <translation>Mover los puntos de entrada de los marcadores seleccionados</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>&amp;Preajuste:</translation>
    </message>
    <message>
        <source>Marker preset</source>
        <translation>Preajuste de marcador</translation>
    </message>
    <message>
        <source>Choose labels of your own for the colors</source>
        <translation>Elegir etiquetas propias para los colores</translation>
    </message>
    <message>
        <source>Define columns of your own for the markers</source>
        <translation>Definir columnas propias para los marcadores</translation>
    </message>
    <message>
        <source>List each marker under its own sequence and clip. Otherwise sequences at the same position in different bins share one name, and so do the clips of a track</source>
        <translation>Mostrar cada marcador bajo su propia secuencia y su propio clip. De lo contrario, las secuencias situadas en la misma posición de bandejas distintas comparten un nombre, y también los clips de una pista</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marcadores</translation>
    </message>
    <message>
        <source>Search the markers</source>
        <translation>Buscar en los marcadores</translation>
    </message>
    <message>
        <source>Show only markers with this text in their name, comment, custom fields, sequence or clip</source>
        <translation>Mostrar solo los marcadores con este texto en el nombre, el comentario, los campos personalizados, la secuencia o el clip</translation>
    </message>
    <message>
        <source>Sequence of markers</source>
        <translation>Secuencia de los marcadores</translation>
    </message>
    <message>
        <source>Show markers of one sequence only</source>
        <translation>Mostrar solo los marcadores de una secuencia</translation>
    </message>
    <message>
        <source>All Flags</source>
        <translation>Todo indicador</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compresión</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Musicalización</translation>
    </message>
    <message>
        <source>Flag of markers</source>
        <translation>Indicador de los marcadores</translation>
    </message>
    <message>
        <source>Show only markers with this flag</source>
        <translation>Mostrar solo los marcadores con este indicador</translation>
    </message>
    <message>
        <source>All Sequences</source>
        <translation>Toda secuencia</translation>
    </message>
    <message>
        <source>%1 marker</source>
        <translation>%1 marcador</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marcadores</translation>
    </message>
    <message>
        <source>There is no marker to go to</source>
        <translation>No hay ningún marcador al que ir</translation>
    </message>
    <message>
        <source>Select a marker first</source>
        <translation>Seleccione antes un marcador</translation>
    </message>
    <message>
        <source>No further marker of this color below</source>
        <translation>No hay más marcadores de este color por debajo</translation>
    </message>
    <message>
        <source>No further marker of this color above</source>
        <translation>No hay más marcadores de este color por encima</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>D&amp;uplicar</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>Mover &amp;entrada, conservar duración</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Marker &amp;Fields…</source>
        <translation>Camp&amp;os de marcador…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Crear prea&amp;juste de marcador…</translation>
    </message>
    <message>
        <source>&amp;Manage Marker Presets…</source>
        <translation>&amp;Gestionar preajustes de marcador…</translation>
    </message>
    <message>
        <source>1 marker duplicated</source>
        <translation>1 marcador duplicado</translation>
    </message>
    <message>
        <source>%1 markers duplicated</source>
        <translation>%1 marcadores duplicados</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 marcador</translation>
    </message>
    <message>
        <source>%1 (%2 selected)</source>
        <translation>%1 (selección: %2)</translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Looking for markers…</source>
        <translation>Buscando marcadores…</translation>
    </message>
    <message>
        <source>Looking for markers: %1 so far…</source>
        <translation>Buscando marcadores: %1 hasta ahora…</translation>
    </message>
    <message>
        <source>This project has no markers yet.</source>
        <translation>Este proyecto aún no tiene marcadores.</translation>
    </message>
    <message>
        <source>No marker matches the search.</source>
        <translation>Ningún marcador coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>No marker has this color.</source>
        <translation>Ningún marcador tiene este color.</translation>
    </message>
    <message>
        <source>The column In is hidden. View ▸ Columns shows it again</source>
        <translation>La columna Entrada está oculta. Ver ▸ Columnas la muestra de nuevo</translation>
    </message>
    <message>
        <source>Nothing was duplicated: no row is selected</source>
        <translation>No se duplicó nada: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>No se eliminó nada: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>The space bar sets and clears the box</source>
        <translation>La barra espaciadora marca y desmarca la casilla</translation>
    </message>
    <message>
        <source>This key removes no markers. Edit ▸ Remove… (Ctrl+Delete) does</source>
        <translation>Esta tecla no elimina marcadores; lo hace Editar ▸ Quitar… (Ctrl+Supr)</translation>
    </message>
    <message>
        <source>There is no clip to choose: the marker is in no sequence</source>
        <translation>No hay ningún clip que elegir: el marcador no está en ninguna secuencia</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaFooter</name>
    <message>
        <source>By kind:</source>
        <translation>Por tipo:</translation>
    </message>
    <message>
        <source>By drive:</source>
        <translation>Por unidad:</translation>
    </message>
    <message>
        <source>Shares of the media on show by kind</source>
        <translation>Porcentajes de los medios mostrados por tipo</translation>
    </message>
    <message>
        <source>Shares of the media on show by drive</source>
        <translation>Porcentajes de los medios mostrados por unidad</translation>
    </message>
    <message>
        <source>Chart of the media on show and the free space of the start-up volume</source>
        <translation>Gráfico de los medios mostrados y del espacio libre en el volumen de arranque</translation>
    </message>
    <message>
        <source>Media on show</source>
        <translation>Medios mostrados</translation>
    </message>
    <message>
        <source>Free on System Drive</source>
        <translation>Libre en la unidad del sistema</translation>
    </message>
    <message>
        <source>Media on show: %1 (green)
Free on the start-up volume: %2 (blue)</source>
        <translation>Medios mostrados: %1 (verde)
Libre en el volumen de arranque: %2 (azul)</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaPane</name>
    <message>
        <source>&amp;Reveal</source>
        <translation>M&amp;ostrar</translation>
    </message>
    <message>
        <source>Re&amp;link…</source>
        <translation>&amp;Revincular…</translation>
    </message>
    <message>
        <source>E&amp;xport List…</source>
        <translation>E&amp;xportar lista…</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Archivos de medios</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>No hay ningún archivo seleccionado. Haga clic antes en su fila</translation>
    </message>
    <message>
        <source>Reveal in File Browser</source>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Relink…</source>
        <translation>Revincular…</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Movie Clips</source>
        <translation>Clips de vídeo</translation>
    </message>
    <message>
        <source>Audio Clips</source>
        <translation>Clips de audio</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Kind of files</source>
        <translation>Tipo de archivos</translation>
    </message>
    <message>
        <source>Show files of one kind only</source>
        <translation>Mostrar solo los archivos de un tipo</translation>
    </message>
    <message>
        <source>All Drives</source>
        <translation>Todas las unidades</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Show the files of one drive only</source>
        <translation>Mostrar solo los archivos de una unidad</translation>
    </message>
    <message>
        <source>Show the selected file in the file browser</source>
        <translation>Mostrar el archivo seleccionado en el gestor de archivos</translation>
    </message>
    <message>
        <source>Find the missing files in other folders</source>
        <translation>Buscar los archivos faltantes en otras carpetas</translation>
    </message>
    <message>
        <source>Write a list of the files to be sent, with checksums if wanted</source>
        <translation>Crear una lista de los archivos que se van a enviar, con sumas de verificación si se desea</translation>
    </message>
    <message>
        <source>Search the media files</source>
        <translation>Buscar en los archivos de medios</translation>
    </message>
    <message>
        <source>Show only files with this text in their name or folder</source>
        <translation>Mostrar solo los archivos con este texto en el nombre o la carpeta</translation>
    </message>
    <message>
        <source>Any State</source>
        <translation>Cualquier estado</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Faltante</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sin usar</translation>
    </message>
    <message>
        <source>Unknown Kind</source>
        <translation>Tipo desconocido</translation>
    </message>
    <message>
        <source>State of files</source>
        <translation>Estado de los archivos</translation>
    </message>
    <message>
        <source>Show only files that are missing, that no sequence uses, or of an unknown kind</source>
        <translation>Mostrar solo los archivos que faltan, que no usa ninguna secuencia o de tipo desconocido</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>System Drive</source>
        <translation>Unidad del sistema</translation>
    </message>
    <message>
        <source>Looking for media…</source>
        <translation>Buscando medios…</translation>
    </message>
    <message>
        <source>Looking for media: %1 so far…</source>
        <translation>Buscando medios: %1 hasta ahora…</translation>
    </message>
    <message>
        <source>This project uses no media files.</source>
        <translation>Este proyecto no usa archivos de medios.</translation>
    </message>
    <message>
        <source>Looking for what the sequences use…</source>
        <translation>Buscando lo que usan las secuencias…</translation>
    </message>
    <message>
        <source>No media file matches the search.</source>
        <translation>Ningún archivo de medios coincide con la búsqueda.</translation>
    </message>
    <message>
        <source>No media file is of this kind and on this drive.</source>
        <translation>Ningún archivo de medios es de este tipo y está en esta unidad.</translation>
    </message>
    <message>
        <source>Unknown Drive</source>
        <translation>Unidad desconocida</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>sizes</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>The size of the files on show</source>
        <translation>El tamaño de los archivos mostrados</translation>
    </message>
    <message>
        <source>Files cannot be removed here: the list shows what the project uses</source>
        <translation>Aquí no se puede eliminar ningún archivo: la lista muestra lo que usa el proyecto</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaTableModel</name>
    <message>
        <source>missing</source>
        <translation>faltante</translation>
    </message>
    <message>
        <source>Missing: the project has no usable address of this file</source>
        <translation>Falta: el proyecto no tiene ninguna dirección utilizable de este archivo</translation>
    </message>
    <message>
        <source>Missing: the drive “%1” is not connected</source>
        <translation>Falta: la unidad «%1» no está conectada</translation>
    </message>
    <message>
        <source>Missing: there is no such file. Relink… finds it in other folders</source>
        <translation>Falta: no existe tal archivo. Revincular… lo encuentra en otras carpetas</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>%1
looked for at %2
%3</source>
        <translation>%1
buscado en %2
%3</translation>
    </message>
</context>
<context>
    <name>vantrell::MessageLine</name>
    <message>
        <source>Copy Path</source>
        <translation>Copiar ruta</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColorStrip</name>
    <message>
        <source>Colors of the list</source>
        <translation>Colores de la lista</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Sin color</translation>
    </message>
    <message>
        <source>Color for “%1”</source>
        <translation>Color para «%1»</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColumnStrip</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Pista</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Custom field</source>
        <translation>Campo personalizado</translation>
    </message>
    <message>
        <source>Ignored</source>
        <translation>Ignorada</translation>
    </message>
    <message>
        <source>Columns of the list</source>
        <translation>Columnas de la lista</translation>
    </message>
    <message>
        <source>Role of the column “%1”</source>
        <translation>Función de la columna «%1»</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreview</name>
    <message>
        <source>Avid markers</source>
        <translation>Marcadores de Avid</translation>
    </message>
    <message>
        <source>Avid markers (XML)</source>
        <translation>Marcadores de Avid (XML)</translation>
    </message>
    <message>
        <source>Premiere Pro markers</source>
        <translation>Marcadores de Premiere Pro</translation>
    </message>
    <message>
        <source>Audition markers</source>
        <translation>Marcadores de Audition</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Marcadores de Resolve (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL con localizadores</translation>
    </message>
    <message>
        <source>Pro Tools session text</source>
        <translation>Texto de sesión de Pro Tools</translation>
    </message>
    <message>
        <source>review notes</source>
        <translation>Notas de revisión</translation>
    </message>
    <message>
        <source>chapters</source>
        <translation>Capítulos</translation>
    </message>
    <message>
        <source>Final Cut Pro X XML</source>
        <translation>XML de Final Cut Pro X</translation>
    </message>
    <message>
        <source>Final Cut Pro marker list</source>
        <translation>Lista de marcadores de Final Cut Pro</translation>
    </message>
    <message>
        <source>table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>separated by tabs</source>
        <translation>separado por tabuladores</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>separado por comas</translation>
    </message>
    <message>
        <source>separated by semicolons</source>
        <translation>separado por puntos y comas</translation>
    </message>
    <message>
        <source>%1 drop frame</source>
        <translation>%1 drop frame</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 fila</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>Recognized as %1</source>
        <translation>Formato reconocido: %1</translation>
    </message>
    <message>
        <source>“%1” is no timecode</source>
        <translation>«%1» no es un código de tiempo</translation>
    </message>
    <message>
        <source>Outside the sequence: before its first frame</source>
        <translation>Fuera de la secuencia: antes de su primer fotograma</translation>
    </message>
    <message>
        <source>Outside the sequence: after its last frame</source>
        <translation>Fuera de la secuencia: después de su último fotograma</translation>
    </message>
    <message>
        <source>Already there; will be added again</source>
        <translation>Ya está; se añadirá de nuevo</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Ya está</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Capítulo</translation>
    </message>
    <message>
        <source>%1 of 1 note will be added</source>
        <translation>Notas que se añadirán: %1 de 1</translation>
    </message>
    <message>
        <source>%1 of %2 notes will be added</source>
        <translation>Notas que se añadirán: %1 de %2</translation>
    </message>
    <message>
        <source>1 is already there</source>
        <translation>1 ya está</translation>
    </message>
    <message>
        <source>%1 are already there</source>
        <translation>%1 ya están</translation>
    </message>
    <message>
        <source>1 is outside the sequence</source>
        <translation>1 está fuera de la secuencia</translation>
    </message>
    <message>
        <source>%1 are outside the sequence</source>
        <translation>%1 están fuera de la secuencia</translation>
    </message>
    <message>
        <source>1 is unreadable</source>
        <translation>1 es ilegible</translation>
    </message>
    <message>
        <source>%1 are unreadable</source>
        <translation>%1 son ilegibles</translation>
    </message>
    <message>
        <source>1 is not checked</source>
        <translation>1 no está marcada</translation>
    </message>
    <message>
        <source>%1 are not checked</source>
        <translation>%1 no están marcadas</translation>
    </message>
    <message>
        <source>Shown as %1</source>
        <translation>Se muestra como %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewModel</name>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Secuencia</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewSheet</name>
    <message>
        <source>A&amp;ll</source>
        <translation>&amp;Todas</translation>
    </message>
    <message>
        <source>Paste Notes</source>
        <translation>Pegar notas</translation>
    </message>
    <message>
        <source>Import Notes from “%1”</source>
        <translation>Importar notas de «%1»</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>Código de tiempo</translation>
    </message>
    <message>
        <source>A timecode or its last digits; a point stands for two zeros: 100 or 1. is one second</source>
        <translation>Un código de tiempo o sus últimos dígitos; un punto equivale a dos ceros: 100 o 1. es un segundo</translation>
    </message>
    <message>
        <source>Add &amp;to:</source>
        <translation>Añadir &amp;a:</translation>
    </message>
    <message>
        <source>Times &amp;are:</source>
        <translation>Los tiempos &amp;son:</translation>
    </message>
    <message>
        <source>Frame &amp;rate:</source>
        <translation>Velocidad de &amp;fotogramas:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Columnas:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Colores:</translation>
    </message>
    <message>
        <source>Timecodes of the sequence</source>
        <translation>Códigos de tiempo de la secuencia</translation>
    </message>
    <message>
        <source>Elapsed from the start</source>
        <translation>Transcurridos desde el comienzo</translation>
    </message>
    <message>
        <source>Timecodes, with this added</source>
        <translation>Códigos de tiempo, sumando este</translation>
    </message>
    <message>
        <source>First note is at</source>
        <translation>Con la primera nota en</translation>
    </message>
    <message>
        <source>As in the list (%1)</source>
        <translation>Como en la lista (%1)</translation>
    </message>
    <message>
        <source>As in the sequence (%1)</source>
        <translation>Como en la secuencia (%1)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Check all rows that are not there yet, or none</source>
        <translation>Marcar todas las filas que aún no están, o ninguna</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>Aña&amp;dir</translation>
    </message>
</context>
<context>
    <name>vantrell::NoticeBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Dismiss notice</source>
        <translation>Descartar aviso</translation>
    </message>
</context>
<context>
    <name>vantrell::PathMappingsSheet</name>
    <message>
        <source>Folder in Projects</source>
        <translation>Carpeta en los proyectos</translation>
    </message>
    <message>
        <source>Folder on This Machine</source>
        <translation>Carpeta en este equipo</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Choose Folder…</source>
        <translation>&amp;Elegir carpeta…</translation>
    </message>
    <message>
        <source>Path Mappings</source>
        <translation>Asignaciones de rutas</translation>
    </message>
    <message>
        <source>Path mappings</source>
        <translation>Asignaciones de rutas</translation>
    </message>
    <message>
        <source>Files of the first folder are looked for in the second one, in all projects. Projects stay as they are. The first folder may also be a path with a drive letter, such as C:\Show, a share, such as //server/share, or a URL.</source>
        <translation>Los archivos de la primera carpeta se buscan en la segunda, en todos los proyectos. Los proyectos quedan como están. La primera carpeta también puede ser una ruta con letra de unidad, como C:\Show, un recurso compartido, como //server/share, o una URL.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>Aña&amp;dir</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>A mapping needs both folders.</source>
        <translation>Una asignación necesita las dos carpetas.</translation>
    </message>
    <message>
        <source>“%1” is no absolute path: it must begin with a slash.</source>
        <translation>«%1» no es una ruta absoluta: debe empezar por una barra.</translation>
    </message>
</context>
<context>
    <name>vantrell::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;General</translation>
    </message>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tablas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>&amp;Valores predeterminados</translation>
    </message>
    <message>
        <source>Set everything in this window as it is at first</source>
        <translation>Restablecer todo lo de esta ventana a su estado inicial</translation>
    </message>
    <message>
        <source>Start-up:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <source>Show the &amp;open dialog</source>
        <translation>Mostrar el diálogo &amp;Abrir</translation>
    </message>
    <message>
        <source>It opens over the start window, unless a project is open by then.</source>
        <translation>Se abre sobre la ventana de inicio, salvo que ya haya un proyecto abierto.</translation>
    </message>
    <message>
        <source>Markers:</source>
        <translation>Marcadores:</translation>
    </message>
    <message>
        <source>&amp;List each marker under its own sequence and clip</source>
        <translation>Mostrar &amp;bajo su propia secuencia y su propio clip</translation>
    </message>
    <message>
        <source>Otherwise sequences at the same position in different bins share one name, and so do the clips of a track. All open projects are listed anew.</source>
        <translation>De lo contrario, las secuencias situadas en la misma posición de bandejas distintas comparten un nombre, y también los clips de una pista. Los marcadores de todos los proyectos abiertos se vuelven a listar.</translation>
    </message>
    <message>
        <source>Unsaved changes:</source>
        <translation>Cambios sin guardar:</translation>
    </message>
    <message>
        <source>&amp;Keep them in a journal</source>
        <translation>Guardarlos en un &amp;diario</translation>
    </message>
    <message>
        <source>After a crash the journal offers to restore them. A project that has unsaved changes now follows this setting once they are saved or undone. Journals that a crash has left are kept, and offered, in any case.</source>
        <translation>Tras un cierre inesperado, el diario permite restaurarlos. Un proyecto que ahora tiene cambios sin guardar sigue este ajuste en cuanto se guardan o se deshacen. Los diarios que haya dejado un cierre inesperado se conservan y se ofrecen en todo caso.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Holds from the next start on. Reports, exported lists, logs and the command line are in English.</source>
        <translation>Se aplica a partir del próximo inicio. Los informes, las listas exportadas, los registros y la línea de comandos están en inglés.</translation>
    </message>
    <message>
        <source>Use the &amp;font of the other controls</source>
        <translation>Usar el tipo de &amp;letra de los demás controles</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Tipo de letra:</translation>
    </message>
    <message>
        <source>Fa&amp;mily:</source>
        <translation>&amp;Familia:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;maño:</translation>
    </message>
    <message>
        <source>As the system’s settings have it: %1</source>
        <translation>Según los ajustes del sistema: %1</translation>
    </message>
    <message>
        <source>Year, month, day: %1</source>
        <translation>Año, mes, día: %1</translation>
    </message>
    <message>
        <source>Month by name: %1</source>
        <translation>Mes con nombre: %1</translation>
    </message>
    <message>
        <source>D&amp;ates:</source>
        <translation>Fec&amp;has:</translation>
    </message>
    <message>
        <source>These are for the tables of all windows. Reports, exported lists and the command line stay as they are.</source>
        <translation>Estos ajustes son para las tablas de todas las ventanas. Los informes, las listas exportadas y la línea de comandos no cambian.</translation>
    </message>
    <message>
        <source>The addresses of the pages that the Help menu opens, for a site with pages of its own. An empty field stands for the standard address. The first %@ in an address becomes “halvex”, the second “vantrell”.</source>
        <translation>Las direcciones de las páginas que abre el menú Ayuda, para organizaciones con páginas propias. Un campo vacío equivale a la dirección estándar. El primer %@ de una dirección se convierte en «halvex»; el segundo, en «vantrell».</translation>
    </message>
    <message>
        <source>Halve&amp;x home page:</source>
        <translation>Página web de &amp;Halvex:</translation>
    </message>
    <message>
        <source>&amp;Orvandel home page:</source>
        <translation>Página web de &amp;Orvandel:</translation>
    </message>
    <message>
        <source>&amp;Support:</source>
        <translation>&amp;Soporte:</translation>
    </message>
    <message>
        <source>Report a &amp;bug:</source>
        <translation>&amp;Informar de un error:</translation>
    </message>
    <message>
        <source>Suggest a &amp;feature:</source>
        <translation>Sugerir una &amp;función:</translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation>&amp;Idioma:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintOperation</name>
    <message>
        <source>The printing system cannot be reached; the package “cups-client” has its program “lp”. %1</source>
        <translation>No se puede acceder al sistema de impresión; el paquete «cups-client» contiene su programa «lp». %1</translation>
    </message>
    <message>
        <source>The printer “%1” did not take the report. %2</source>
        <translation>La impresora «%1» no aceptó el informe. %2</translation>
    </message>
    <message>
        <source>Making the pages…</source>
        <translation>Creando las páginas…</translation>
    </message>
    <message>
        <source>Making the pages for “%1”…</source>
        <translation>Creando las páginas para «%1»…</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintPanel</name>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>PDF files (*.pdf *.PDF)</source>
        <translation>Archivos PDF (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Impre&amp;sora:</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>C&amp;opias:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>Pa&amp;pel:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>O&amp;rientación:</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Márgenes:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>vantrell::ProgressSheet</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>vantrell::QVFCPProjectLoader</name>
    <message>
        <source>Open Final Cut Pro Project</source>
        <translation>Abrir proyecto de Final Cut Pro</translation>
    </message>
    <message>
        <source>&amp;Projects that are open in Final Cut Pro:</source>
        <translation>&amp;Proyectos abiertos en Final Cut Pro:</translation>
    </message>
    <message>
        <source>Projects that are open in Final Cut Pro</source>
        <translation>Proyectos abiertos en Final Cut Pro</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro</source>
        <translation>Consultando a Final Cut Pro</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro for its open projects…</source>
        <translation>Consultando a Final Cut Pro sus proyectos abiertos…</translation>
    </message>
    <message>
        <source>No project is open in Final Cut Pro.</source>
        <translation>No hay ningún proyecto abierto en Final Cut Pro.</translation>
    </message>
    <message>
        <source>Final Cut Pro does not answer.</source>
        <translation>Final Cut Pro no responde.</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running.</source>
        <translation>Final Cut Pro no se está ejecutando.</translation>
    </message>
    <message>
        <source>Error loading project</source>
        <translation>Error al cargar el proyecto</translation>
    </message>
</context>
<context>
    <name>vantrell::QuitSequence</name>
    <message>
        <source>Do you want to save the changes made to %1 projects before quitting?</source>
        <translation>¿Desea guardar los cambios hechos en %1 proyectos antes de salir?</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar todo</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Revisar…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Descartar todo</translation>
    </message>
</context>
<context>
    <name>vantrell::Recovery</name>
    <message>
        <source>The unsaved changes to “%1” could not be restored.</source>
        <translation>No se pudieron restaurar los cambios sin guardar de «%1».</translation>
    </message>
    <message>
        <source>The project is in use. The changes are kept and offered again the next time.</source>
        <translation>El proyecto está en uso. Los cambios se conservan y se ofrecerán de nuevo la próxima vez.</translation>
    </message>
</context>
<context>
    <name>vantrell::RecoveryPanel</name>
    <message>
        <source>Changed since</source>
        <translation>Modificado después</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Faltante</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Como estaba</translation>
    </message>
    <message>
        <source>The project was saved by someone else since. Changes that still apply are restored.</source>
        <translation>Otra persona guardó el proyecto después. Se restauran los cambios que aún son aplicables.</translation>
    </message>
    <message>
        <source>The project is not where it was. Its changes are kept until it is back.</source>
        <translation>El proyecto no está donde estaba. Sus cambios se conservan hasta que vuelva a estar.</translation>
    </message>
    <message>
        <source>All changes can be restored.</source>
        <translation>Se pueden restaurar todos los cambios.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The program ended before the changes to this project were saved.</source>
        <translation>El programa terminó antes de que se guardaran los cambios de este proyecto.</translation>
    </message>
    <message>
        <source>The program ended before the changes to these projects were saved.</source>
        <translation>El programa terminó antes de que se guardaran los cambios de estos proyectos.</translation>
    </message>
    <message>
        <source>Projects with unsaved changes</source>
        <translation>Proyectos con cambios sin guardar</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Cambios</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>&amp;Descartar…</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to this project?</source>
        <translation>¿Desea descartar los cambios sin guardar de este proyecto?</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to %1 projects?</source>
        <translation>¿Desea descartar los cambios sin guardar de %1 proyectos?</translation>
    </message>
    <message>
        <source>They cannot be restored after that.</source>
        <translation>Después no se podrán restaurar.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>A restored project opens with its changes, which are not saved yet. Those left for later are offered again.</source>
        <translation>Un proyecto restaurado se abre con sus cambios, que aún no están guardados. Los que se dejen para más tarde se ofrecen de nuevo.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkSheet</name>
    <message>
        <source> So it is with %1 other folders.</source>
        <translation> Lo mismo ocurre con otras %1 carpetas.</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Revincular</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Archivos faltantes</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Buscando</translation>
    </message>
    <message>
        <source>&amp;Use Mapping Instead</source>
        <translation>&amp;Usar asignación en su lugar</translation>
    </message>
    <message>
        <source>Look for the files there, and leave the project as it is</source>
        <translation>Buscar ahí los archivos y dejar el proyecto como está</translation>
    </message>
    <message>
        <source>1 file is missing.</source>
        <translation>Falta 1 archivo.</translation>
    </message>
    <message>
        <source>%1 files are missing.</source>
        <translation>Faltan %1 archivos.</translation>
    </message>
    <message>
        <source>&amp;Look in these folders, and all that is below them:</source>
        <translation>Buscar &amp;en estas carpetas y en todo su contenido:</translation>
    </message>
    <message>
        <source>Folders to look in</source>
        <translation>Carpetas en las que buscar</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Añadir carpeta…</translation>
    </message>
    <message>
        <source>&amp;Relink</source>
        <translation>&amp;Revincular</translation>
    </message>
    <message>
        <source>Path &amp;Mappings…</source>
        <translation>Asignaciones de ru&amp;tas…</translation>
    </message>
    <message>
        <source>Add a Folder to Look In</source>
        <translation>Añadir una carpeta en la que buscar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>Se detuvo la búsqueda.</translation>
    </message>
    <message>
        <source>%1 folders, %2 files seen, %3 found…</source>
        <translation>%1 carpetas, %2 archivos examinados, %3 encontrados…</translation>
    </message>
    <message>
        <source>%1 of %2 missing files found</source>
        <translation>Encontrados %1 de %2 archivos faltantes</translation>
    </message>
    <message>
        <source>, %1 of them several times: choose one of each</source>
        <translation>, %1 de ellos varias veces: elija uno de cada</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>No se puede leer «%1».</translation>
    </message>
    <message>
        <source>“%1” does not answer.</source>
        <translation>«%1» no responde.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>All of them are found where “%1” is “%2”. A path mapping leaves the project as it is.</source>
        <translation>Todos se encuentran si «%1» es «%2». Una asignación de rutas deja el proyecto como está.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkTableModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Coincidencia</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Folder in the Project</source>
        <translation>Carpeta en el proyecto</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>, %1 files</source>
        <translation>, %1 archivos</translation>
    </message>
    <message>
        <source>Choose one of %1…</source>
        <translation>Elegir uno de %1…</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportOptions</name>
    <message>
        <source>Color &amp;labels behind marker names</source>
        <translation>Etiquetas de co&amp;lor tras los nombres de los marcadores</translation>
    </message>
    <message>
        <source>Columns of the report</source>
        <translation>Columnas del informe</translation>
    </message>
    <message>
        <source>Report &amp;title:</source>
        <translation>&amp;Título del informe:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>Col&amp;umnas:</translation>
    </message>
    <message>
        <source>All rows on show are included: %1.</source>
        <translation>Se incluyen todas las filas mostradas: %1.</translation>
    </message>
    <message>
        <source>Only the selected row of %1 is included.</source>
        <translation>Solo se incluye la fila seleccionada de %1.</translation>
    </message>
    <message>
        <source>Only the %1 selected rows of %2 are included.</source>
        <translation>Solo se incluyen las %1 filas seleccionadas de %2.</translation>
    </message>
    <message>
        <source>To have all of them, select all (Ctrl+A) first.</source>
        <translation>Para incluirlas todas, selecciónelas antes (Ctrl+A).</translation>
    </message>
    <message>
        <source>No row is on show: the report is empty.</source>
        <translation>No se muestra ninguna fila: el informe está vacío.</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportView</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
</context>
<context>
    <name>vantrell::SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>vantrell::SharesBar</name>
    <message>
        <source>&lt;1 %</source>
        <translation>&lt;1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <comment>name, size, percentage</comment>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>+%1</source>
        <comment>further shares</comment>
        <translation>+%1</translation>
    </message>
</context>
<context>
    <name>vantrell::StartWindow</name>
    <message>
        <source>Media, effects and markers
of an editing project</source>
        <translation>Medios, efectos y marcadores
de un proyecto de edición</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Choose a project or an XML file</source>
        <translation>Elegir un proyecto o un archivo XML</translation>
    </message>
    <message>
        <source>Try the program with a copy of a small project that has something of everything</source>
        <translation>Probar el programa con una copia de un proyecto pequeño que tiene un poco de todo</translation>
    </message>
    <message>
        <source>Drop a project or
an XML file here</source>
        <translation>Suelte aquí un proyecto
o un archivo XML</translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation>Proyectos &amp;recientes</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>&amp;Show the open dialog at start-up</source>
        <translation>Mostrar el &amp;diálogo Abrir al iniciar</translation>
    </message>
    <message>
        <source>%1, in Final Cut Pro</source>
        <translation>%1, en Final Cut Pro</translation>
    </message>
    <message>
        <source>Projects that you open are listed here.</source>
        <translation>Aquí se muestran los proyectos que abra.</translation>
    </message>
    <message>
        <source>Open Sam&amp;ple Project</source>
        <translation>Abrir &amp;proyecto de ejemplo</translation>
    </message>
</context>
<context>
    <name>vantrell::TabPane</name>
    <message>
        <source>Reading the project</source>
        <translation>Leyendo el proyecto</translation>
    </message>
    <message>
        <source>Nothing was copied: no row is selected</source>
        <translation>No se copió nada: no hay ninguna fila seleccionada</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>count and total</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>shown and selected</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>selección: %1</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <translation>%1 hasta ahora</translation>
    </message>
    <message>
        <source>No project is loaded.</source>
        <translation>No hay ningún proyecto cargado.</translation>
    </message>
    <message>
        <source>Nothing can be edited yet, as the project is still being read</source>
        <translation>Aún no se puede editar nada, porque el proyecto se está leyendo</translation>
    </message>
    <message>
        <source>Nothing can be edited until the operation that is going on has ended</source>
        <translation>No se puede editar nada hasta que termine la operación en curso</translation>
    </message>
    <message>
        <source>Fi&amp;t Column</source>
        <translation>Ajustar colum&amp;na</translation>
    </message>
    <message>
        <source>Fit &amp;All Columns</source>
        <translation>Ajustar &amp;todas las columnas</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Restablecer columnas</translation>
    </message>
</context>
<context>
    <name>vantrell::TableDelegate</name>
    <message>
        <source>%1, in all %2 selected rows</source>
        <translation>%1, en las %2 filas seleccionadas</translation>
    </message>
</context>
<context>
    <name>vantrell::TableModel</name>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
</context>
<context>
    <name>vantrell::VerificationSheet</name>
    <message>
        <source>missing</source>
        <translation>faltante</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificado</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>ilegible</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>File in the List</source>
        <translation>Archivo de la lista</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Verificar lista</translation>
    </message>
    <message>
        <source>All files are as listed in “%1”.</source>
        <translation>Todos los archivos están como figuran en «%1».</translation>
    </message>
    <message>
        <source>Not all files are as listed in “%1”.</source>
        <translation>No todos los archivos están como figuran en «%1».</translation>
    </message>
    <message>
        <source>Verified files</source>
        <translation>Archivos verificados</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>Copiar la tabla al portapapeles</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowComparison</name>
    <message>
        <source>Compare with</source>
        <translation>Comparar con</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Proyectos y archivos XML de Final Cut Pro 7 (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <translation>Abriendo «%1»…</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>No se pudo abrir «%1».</translation>
    </message>
    <message>
        <source>The project “%1” is not ready.</source>
        <translation>El proyecto «%1» no está listo.</translation>
    </message>
    <message>
        <source>Wait until it is loaded.</source>
        <translation>Espere a que se cargue.</translation>
    </message>
    <message>
        <source>“%1” has no two sequences to compare.</source>
        <translation>«%1» no tiene dos secuencias que comparar.</translation>
    </message>
    <message>
        <source>“%1” has no sequence to compare.</source>
        <translation>«%1» no tiene ninguna secuencia que comparar.</translation>
    </message>
    <message>
        <source>“%1” is busy. Try again when that is done.</source>
        <translation>«%1» está ocupado. Inténtelo de nuevo cuando termine.</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparando…</translation>
    </message>
    <message>
        <source>The cuts could not be compared; the log tells why.</source>
        <translation>No se pudieron comparar los montajes; el registro indica el motivo.</translation>
    </message>
    <message>
        <source>The sequences have changed. Compare again first.</source>
        <translation>Las secuencias han cambiado. Repita antes la comparación.</translation>
    </message>
    <message>
        <source>The markers could not be added.</source>
        <translation>No se pudieron añadir los marcadores.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Añadiendo marcadores…</translation>
    </message>
    <message>
        <source>1 marker added from the old cut</source>
        <translation>1 marcador añadido del montaje anterior</translation>
    </message>
    <message>
        <source>%1 markers added from the old cut</source>
        <translation>%1 marcadores añadidos del montaje anterior</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMarkerLists</name>
    <message>
        <source>The project is still loading</source>
        <translation>El proyecto aún se está cargando</translation>
    </message>
    <message>
        <source>Please wait for the project to finish loading before attempting this operation.</source>
        <translation>Espere a que el proyecto termine de cargarse antes de intentar esta operación.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Añadiendo marcadores…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Leyendo «%1»…</translation>
    </message>
    <message>
        <source>Reading %1 marker lists…</source>
        <translation>Leyendo %1 listas de marcadores…</translation>
    </message>
    <message>
        <source>%1 of %2 markers imported</source>
        <translation>%1 de %2 marcadores importados</translation>
    </message>
    <message>
        <source>%1 markers imported from %2 files</source>
        <translation>%1 marcadores importados de %2 archivos</translation>
    </message>
    <message>
        <source>1 marker imported from “%1”</source>
        <translation>1 marcador importado de «%1»</translation>
    </message>
    <message>
        <source>%1 markers imported from “%2”</source>
        <translation>%1 marcadores importados de «%2»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo «%1»…</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 marcador exportado a «%1»</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 marcadores exportados a «%2»</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMedia</name>
    <message>
        <source>No file is missing</source>
        <translation>No falta ningún archivo</translation>
    </message>
    <message>
        <source>Relinking…</source>
        <translation>Revinculando…</translation>
    </message>
    <message>
        <source>1 file relinked</source>
        <translation>1 archivo revinculado</translation>
    </message>
    <message>
        <source>%1 files relinked</source>
        <translation>%1 archivos revinculados</translation>
    </message>
    <message>
        <source>; 1 is still missing</source>
        <translation>; aún falta 1</translation>
    </message>
    <message>
        <source>; %1 are still missing</source>
        <translation>; aún faltan %1</translation>
    </message>
    <message>
        <source>Files of “%1” are looked for in “%2”</source>
        <translation>Los archivos de «%1» se buscan en «%2»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo «%1»…</translation>
    </message>
    <message>
        <source>The list could not be exported to “%1”.</source>
        <translation>No se pudo exportar la lista a «%1».</translation>
    </message>
    <message>
        <source>1 file listed in “%1”</source>
        <translation>1 archivo listado en «%1»</translation>
    </message>
    <message>
        <source>%1 files listed in “%2”</source>
        <translation>%1 archivos listados en «%2»</translation>
    </message>
    <message>
        <source>; %1 missing left out</source>
        <translation>; faltantes omitidos: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Some files could not be read, and are not in the list.</source>
        <translation>Algunos archivos no se pudieron leer y no figuran en la lista.</translation>
    </message>
    <message>
        <source>Some paths hold a line break, and are not in the list.</source>
        <translation>Algunas rutas contienen un salto de línea y no figuran en la lista.</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Verificar lista</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Listas de hash de medios</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Verifying the files of “%1”…</source>
        <translation>Verificando los archivos de «%1»…</translation>
    </message>
    <message>
        <source>There is no file in it.</source>
        <translation>No contiene ningún archivo.</translation>
    </message>
    <message>
        <source>The list “%1” cannot be verified.</source>
        <translation>No se puede verificar la lista «%1».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowNotes</name>
    <message>
        <source>There is no sequence</source>
        <translation>No hay ninguna secuencia</translation>
    </message>
    <message>
        <source>The project has no sequence that notes could be added to.</source>
        <translation>El proyecto no tiene ninguna secuencia a la que añadir notas.</translation>
    </message>
    <message>
        <source>Import Notes</source>
        <translation>Importar notas</translation>
    </message>
    <message>
        <source>Lists of notes (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</source>
        <translation>Listas de notas (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Reading the notes…</source>
        <translation>Leyendo las notas…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Leyendo «%1»…</translation>
    </message>
    <message>
        <source>The clipboard holds no list of notes</source>
        <translation>El portapapeles no contiene ninguna lista de notas</translation>
    </message>
    <message>
        <source>There are no notes in “%1”</source>
        <translation>No hay notas en «%1»</translation>
    </message>
    <message>
        <source>No line of the file has a timecode, a frame number or a time.</source>
        <translation>Ninguna línea del archivo contiene un código de tiempo, un número de fotograma o un tiempo.</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>No se pudo leer «%1»</translation>
    </message>
    <message>
        <source>Unable to add the notes</source>
        <translation>No se pueden añadir las notas</translation>
    </message>
    <message>
        <source>Adding notes…</source>
        <translation>Añadiendo notas…</translation>
    </message>
    <message>
        <source>1 note added</source>
        <translation>1 nota añadida</translation>
    </message>
    <message>
        <source>%1 notes added</source>
        <translation>%1 notas añadidas</translation>
    </message>
    <message>
        <source>Line %1, “%2”: %3</source>
        <translation>Línea %1, «%2»: %3</translation>
    </message>
    <message>
        <source>1 note could not be added</source>
        <translation>No se pudo añadir 1 nota</translation>
    </message>
    <message>
        <source>%1 notes could not be added</source>
        <translation>No se pudieron añadir %1 notas</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… y %1 más</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo «%1»…</translation>
    </message>
    <message>
        <source>The notes could not be exported to “%1”.</source>
        <translation>No se pudieron exportar las notas a «%1».</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 marcador exportado a «%1»</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 marcadores exportados a «%2»</translation>
    </message>
    <message>
        <source>“%1” cannot hold everything</source>
        <translation>«%1» no puede contenerlo todo</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowReports</name>
    <message>
        <source>The report could not be printed.</source>
        <translation>No se pudo imprimir el informe.</translation>
    </message>
    <message>
        <source>Another report is being printed.</source>
        <translation>Se está imprimiendo otro informe.</translation>
    </message>
    <message>
        <source>Close its print panel first.</source>
        <translation>Cierre antes su panel de impresión.</translation>
    </message>
    <message>
        <source>Preparing the report…</source>
        <translation>Preparando el informe…</translation>
    </message>
    <message>
        <source>Report saved to “%1”</source>
        <translation>Informe guardado en «%1»</translation>
    </message>
    <message>
        <source>Report handed to the printer “%1”</source>
        <translation>Informe enviado a la impresora «%1»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo «%1»…</translation>
    </message>
    <message>
        <source>Report exported to “%1”</source>
        <translation>Informe exportado a «%1»</translation>
    </message>
    <message>
        <source>The report could not be exported to “%1”.</source>
        <translation>No se pudo exportar el informe a «%1».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSaving</name>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>No se pudo guardar el documento «%1».</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first, or choose another name.</source>
        <translation>El archivo está abierto en otra ventana. Cierre antes esa ventana o elija otro nombre.</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>Guardando «%1»…</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>Archivos XML (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Your changes since it was last saved will be lost.</source>
        <translation>Se perderán los cambios hechos desde que se guardó por última vez.</translation>
    </message>
    <message>
        <source>%1 will be lost.</source>
        <translation>Se perderá lo siguiente: %1.</translation>
    </message>
    <message>
        <source>Do you want to revert to the saved version of “%1”?</source>
        <translation>¿Desea volver a la versión guardada de «%1»?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>Edit ▸ Undo Revert brings the project back as it is now, until you save, revert again or close the window.</source>
        <translation>Editar ▸ Deshacer Revertir recupera el proyecto como está ahora, hasta que guarde, vuelva a revertir o cierre la ventana.</translation>
    </message>
    <message>
        <source>Waiting for the question in another window…</source>
        <translation>Esperando la pregunta de otra ventana…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>Esperando el volumen de «%1»…</translation>
    </message>
    <message>
        <source>“%1” cannot be read any more.</source>
        <translation>Ya no se puede leer «%1».</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>El proyecto sigue abierto como está. Puede guardarlo en otro lugar.</translation>
    </message>
    <message>
        <source>Do you want to save the changes made to “%1”?</source>
        <translation>¿Desea guardar los cambios hechos en «%1»?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don’t Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>They are being sent. Your changes may be lost if you don’t wait for that.</source>
        <translation>Se están enviando. Los cambios pueden perderse si no espera a que termine el envío.</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don’t save them.</source>
        <translation>Los cambios se perderán si no los guarda.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSending</name>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>The changes are still being sent.</source>
        <translation>Los cambios aún se están enviando.</translation>
    </message>
    <message>
        <source>Export Changed Sequences</source>
        <translation>Exportar secuencias modificadas</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>Archivos XML (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported.</source>
        <translation>No se pudieron exportar las secuencias modificadas.</translation>
    </message>
    <message>
        <source>“%1” is open in a window. Choose another name.</source>
        <translation>«%1» está abierto en una ventana. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>No se pudo escribir el archivo.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Escribiendo «%1»…</translation>
    </message>
    <message>
        <source>Changed sequences exported to “%1”</source>
        <translation>Secuencias modificadas exportadas a «%1»</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported to “%1”.</source>
        <translation>No se pudieron exportar las secuencias modificadas a «%1».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowWork</name>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
</context>
</TS>
