-- A month of the log that has lines has its partition.
SELECT format('SELECT prepara_mes(%L)', mes)
  FROM (SELECT DISTINCT date_trunc('month', momento, 'UTC') AS mes FROM :"anterior".bitacora) AS m
 ORDER BY mes
\gexec
